#include "frame/controls/Colours.h"
#include "frame/controls/FloatingEditor.h"
#include "frame/controls/Grid.h"
#include "frame/controls/MaskedBox.h"
#include "tests/support/UserActs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <cmath>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

// A grid of items with their figures, with an editor over it.
class GridTest : public testing::Test
{
protected:
    GridTest()
    {
        mGrid.SetSize(20, 3);
        mGrid.SetFixed(1, 1);
        mGrid.setGeometry(30, 40, 340, 150);
        QObject::connect(&mGrid, &Grid::LeaveCell, [this] { Note("leave"); });
        QObject::connect(&mGrid, &Grid::EnterCell, [this] { Note("enter"); });
        mWindow.resize(420, 300);
        ShowActive(mWindow);
    }

    void Note(const char *what)
    {
        mEvents.push_back(std::string(what) + " " + std::to_string(mGrid.CurrentRow()) + ","
                          + std::to_string(mGrid.CurrentColumn()));
    }

    void ClickCell(int row, int column)
    {
        Click(*mGrid.viewport(), mGrid.visualRect(mGrid.model()->index(row, column)).center());
    }

    std::vector<std::string> TakeEvents() { return std::exchange(mEvents, {}); }

    // The colour in which a cell's text or ground is drawn.
    QColor Drawn(int row, int column, bool text)
    {
        const QRect cell = mGrid.CellRect(row, column).translated(-mGrid.pos());
        const QImage image = mGrid.grab(cell.adjusted(1, 1, -1, -1)).toImage();
        const QColor ground = image.pixelColor(1, 1);
        if (!text)
            return ground;
        QColor furthest = ground;
        const auto distance = [&](QColor from) {
            return std::abs(from.red() - ground.red()) + std::abs(from.green() - ground.green())
                + std::abs(from.blue() - ground.blue());
        };
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (distance(image.pixelColor(x, y)) > distance(furthest))
                    furthest = image.pixelColor(x, y);
        return furthest;
    }

    QWidget mWindow;
    Grid mGrid {&mWindow};
    std::vector<std::string> mEvents;
};

TEST_F(GridTest, TheCurrentCellLeavesAndEntersInOrder)
{
    EXPECT_EQ(mGrid.CurrentRow(), 1);
    EXPECT_EQ(mGrid.CurrentColumn(), 1);
    mGrid.SetCurrent(3, 2);
    EXPECT_THAT(TakeEvents(), ElementsAre("leave 1,1", "enter 3,2"));
    mGrid.SetCurrent(3, 2);
    mGrid.SetCurrent(0, 2);
    mGrid.SetCurrent(3, 3);
    mGrid.PlaceCurrent(4, 1);
    EXPECT_THAT(TakeEvents(), IsEmpty());
    ClickCell(4, 1);
    EXPECT_THAT(TakeEvents(), ElementsAre("enter 4,1"));
    ClickCell(2, 0);
    EXPECT_THAT(TakeEvents(), ElementsAre("leave 4,1", "enter 2,1"));
    mGrid.SetSize(2, 2);
    EXPECT_EQ(mGrid.CurrentRow(), 1);
}

TEST_F(GridTest, CellsShowTheirTextsInThePalettesColours)
{
    for (const QColor &base : {QColor(Qt::white), QColor(30, 30, 30)}) {
        QPalette palette = mGrid.palette();
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, base == Qt::white ? Qt::black : Qt::white);
        palette.setColor(QPalette::Button, Qt::gray);
        mGrid.setPalette(palette);
        for (int row = 0; row < 3; ++row)
            mGrid.SetCell(row, 1, "1111");
        mGrid.SetRed(2, 1, true);
        mGrid.SetBold(1, 1, true);
        EXPECT_EQ(Drawn(0, 1, false), QColor(Qt::gray));
        EXPECT_EQ(Drawn(1, 1, false), base);
        EXPECT_GT(Drawn(2, 1, true).red(), Drawn(2, 1, true).green() + 80);
        EXPECT_NEAR(Drawn(1, 1, true).red(), Drawn(1, 1, true).green(), 20);
    }
    EXPECT_TRUE(mGrid.IsRed(2, 1));
    EXPECT_EQ(mGrid.Cell(2, 1), "1111");
    mGrid.ClearCells();
    EXPECT_FALSE(mGrid.IsRed(2, 1));
    EXPECT_EQ(mGrid.Cell(2, 1), "");
}

TEST_F(GridTest, TheEditorLiesOverItsCellWhateverTheGridDoes)
{
    FloatingEditor editor;
    int keys = 0;
    editor.OnKeyDown([&keys](QKeyEvent &event) {
        ++keys;
        return event.key() == Qt::Key_X;
    });
    editor.setText("12.5");
    editor.Place(mGrid, 2, 1);
    EXPECT_EQ(editor.parentWidget(), &mWindow);
    EXPECT_EQ(editor.geometry(), mGrid.CellRect(2, 1));
    mGrid.move(50, 10);
    mGrid.setColumnWidth(0, 70);
    EXPECT_EQ(editor.geometry(), mGrid.CellRect(2, 1));
    EXPECT_EQ(editor.x(), 50 + mGrid.frameWidth() + 70);
    mGrid.verticalScrollBar()->setValue(1);
    EXPECT_EQ(editor.geometry(), mGrid.CellRect(2, 1));
    mGrid.verticalScrollBar()->setValue(5);
    EXPECT_TRUE(editor.geometry().isEmpty());
    EXPECT_TRUE(editor.isVisible());
    mGrid.hide();
    EXPECT_FALSE(editor.isVisible());
    mGrid.show();

    editor.Place(mGrid, 6, 2);
    EXPECT_EQ(editor.geometry(), mGrid.CellRect(6, 2));
    editor.setFocus();
    EXPECT_EQ(editor.selectedText(), "12.5");
    Type(editor, "x7");
    EXPECT_EQ(editor.text(), "7");
    EXPECT_EQ(keys, 2);
}

// The contrast that the accessibility guidelines define; 4.5 is what they ask for text.
double Contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &colour) {
        const auto linear
            = [](double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(Colours, RedIsReadableOnLightAndDarkAndLeavesWithTheFieldsOwnColours)
{
    QLineEdit field;
    QPalette own = field.palette();
    own.setColor(QPalette::Text, Qt::darkGreen);
    field.setPalette(own);
    for (const QColor &base : {QColor(Qt::white), QColor(240, 240, 240), QColor(45, 45, 45), QColor(Qt::black)}) {
        SetRed(field, true);
        QPalette palette = field.palette();
        palette.setColor(QPalette::Base, base);
        field.setPalette(palette);
        const QColor red = field.palette().color(QPalette::Text);
        EXPECT_GE(Contrast(red, base), 4.5) << base.name().toStdString();
        EXPECT_GT(red.hslSaturation(), 200);
        EXPECT_TRUE(IsRed(field));
    }
    SetRed(field, false);
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(Qt::darkGreen));
    EXPECT_FALSE(IsRed(field));
}

TEST(MaskedBox, ShowsWhatFitsItsMaskAndPromptsOtherwise)
{
    struct Case {
        const char *mask;
        const char *text;
        const char *shown;
    };
    for (const Case &one : {
             Case {"99-99-9999", "05-03-2024", "05-03-2024"},
             Case {"99-99-9999", "05032024", "05-03-2024"},
             Case {"99-99-9999", "5-3-2024", "__-__-____"},
             Case {"99-99-9999", "__-03-2024", "__-03-2024"},
             Case {"99-99-9999", "", "__-__-____"},
             Case {"99:99", "23:59", "23:59"},
             Case {"99:99", "2a:59", "__:__"},
             Case {"99 hA9", "12 hA3", "12 hA3"},
         }) {
        MaskedBox box;
        box.SetMask(one.mask);
        box.SetText("1");
        box.SetText(one.text);
        EXPECT_EQ(box.Text(), one.shown) << one.text;
    }
    MaskedBox box;
    box.SetMask("99-99-9999");
    ShowActive(box);
    box.setFocus(Qt::TabFocusReason);
    Type(box, "0503");
    EXPECT_EQ(box.Text(), "05-03-____");
    Type(box, "x2024");
    EXPECT_EQ(box.Text(), "05-03-2024");
}
} // namespace
