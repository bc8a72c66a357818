#include "frame/controls/DataCombo.h"

#include "frame/store/Recordset.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QStyleOptionComboBox>

namespace
{
// A form's picker of ports, of which two have the same name.
class DataComboTest : public TestStore
{
protected:
    DataComboTest()
    {
        Run("INSERT INTO Port (PortID, PortName) VALUES (7, 'Aden'), (8, 'Basra'), (9, 'Basra'), (11, 'Cadiz')");
        Fill("SELECT PortID, PortName FROM Port ORDER BY PortID");
        QObject::connect(&mCombo, &DataCombo::Changed, [this] { ++mChanges; });
        ShowActive(mCombo);
        mCombo.setFocus();
    }

    void Fill(std::string_view sql)
    {
        mRows.Reopen(sql, CursorType::Static, LockType::ReadOnly);
        mCombo.SetRows(mRows, "PortName", "PortID");
    }

    // What the user reads in a box that cannot be typed into.
    QString Shown()
    {
        class Open : public DataCombo
        {
        public:
            using DataCombo::initStyleOption;
        };
        QStyleOptionComboBox option;
        (mCombo.*(&Open::initStyleOption))(&option);
        return option.currentText;
    }

    void ExpectState(const char *text, const Value &bound, int changes)
    {
        EXPECT_EQ(mCombo.Text(), text);
        EXPECT_EQ(mCombo.BoundValue().Type(), bound.Type());
        EXPECT_EQ(mCombo.BoundValue(), bound);
        EXPECT_EQ(Shown(), text);
        EXPECT_EQ(mChanges, changes);
    }

    DataCombo mCombo;
    Recordset mRows;
    int mChanges = 0;
};

TEST_F(DataComboTest, TheProgramPicksByBoundValueOrTextAndNothingIsToldOfIt)
{
    ExpectState("", Value(), 0);
    mCombo.SetBoundValue(Value(9));
    ExpectState("Basra", Value(9), 0);
    mCombo.SetBoundValue(Value(12));
    ExpectState("", Value(), 0);
    mCombo.SetText("Cadiz");
    ExpectState("Cadiz", Value(11), 0);
    mCombo.SetText("Dakar");
    ExpectState("Dakar", Value(), 0);
    Run("INSERT INTO Port (PortID, PortName) VALUES (20, 'Dakar')");
    Fill("SELECT PortID, PortName FROM Port ORDER BY PortName DESC");
    ExpectState("Dakar", Value(20), 0);
    mCombo.SetBoundValue(Value());
    ExpectState("", Value(), 0);
}

TEST_F(DataComboTest, TheUsersChoiceIsToldOncePerChange)
{
    Type(mCombo, "b");
    ExpectState("Basra", Value(8), 1);
    PressKey(mCombo, Qt::Key_Down);
    ExpectState("Basra", Value(9), 2);
    PressKey(mCombo, Qt::Key_Return);
    EXPECT_FALSE(mCombo.view()->isVisible());
    PressKey(mCombo, Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(mCombo.view()->isVisible());
    Click(*mCombo.view()->viewport(), mCombo.view()->visualRect(mCombo.model()->index(3, 0)).center());
    ExpectState("Cadiz", Value(11), 3);
    PressKey(mCombo, Qt::Key_Down);
    ExpectState("Cadiz", Value(11), 3);
}

TEST_F(DataComboTest, ANameIsFoundByItsLettersAndBlanks)
{
    Run("INSERT INTO Port (PortID, PortName) VALUES (31, 'San Juan'), (32, 'San Pedro'), (33, 'Santos')");
    Fill("SELECT PortID, PortName FROM Port ORDER BY PortID");
    const int before = QApplication::keyboardInputInterval();
    QApplication::setKeyboardInputInterval(60000);
    Type(mCombo, "san p");
    QApplication::setKeyboardInputInterval(before);
    ExpectState("San Pedro", Value(32), 2);
    EXPECT_FALSE(mCombo.view()->isVisible());
}

TEST_F(DataComboTest, AnEditableBoxTakesWhatIsTypedAsItIs)
{
    mCombo.SetText("Eden");
    mCombo.setEditable(true);
    ExpectState("Eden", Value(), 0);
    mCombo.lineEdit()->selectAll();
    Type(mCombo, "ca");
    ExpectState("ca", Value(), 2);
    mCombo.clearFocus();
    ExpectState("ca", Value(), 2);
    EXPECT_EQ(mCombo.count(), 4);
    mCombo.lineEdit()->selectAll();
    Type(mCombo, "Cadiz");
    ExpectState("Cadiz", Value(11), 7);
    PressKey(mCombo, Qt::Key_Down);
    ExpectState("Aden", Value(7), 8);
}
} // namespace
