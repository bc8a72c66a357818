#include "survey/SurveyLook.h"

#include "survey/SurveyControls.h"

#include <QHeaderView>

#include <initializer_list>

namespace
{
constexpr int kCellMargins = 10;
// The width that a QLineEdit asks for by itself, in letters x.
constexpr int kOwnCharacters = 17;

int DigitsWidth(const QWidget &widget, int characters)
{
    return widget.fontMetrics().horizontalAdvance(u'0') * characters;
}

// Fixed rows and columns: the grid asks for exactly what it shows, in place of the room for scroll bars.
void FitGrid(Grid &grid, std::initializer_list<int> characters)
{
    int column = 0;
    for (const int count : characters)
        grid.setColumnWidth(column++, DigitsWidth(grid, count) + kCellMargins);
    grid.setMinimumWidth(grid.horizontalHeader()->length() + 2 * grid.frameWidth());
    grid.setFixedHeight(grid.verticalHeader()->length() + 2 * grid.frameWidth());
}
} // namespace

void FitFields(QWidget &window)
{
    for (QLineEdit *field : window.findChildren<QLineEdit *>()) {
        const int characters = field->property("characters").toInt();
        if (characters == 0)
            continue;
        const int margins = field->sizeHint().width() - kOwnCharacters * field->fontMetrics().horizontalAdvance(u'x');
        field->setFixedWidth(margins + DigitsWidth(*field, characters));
    }
}

void FitGrids(const Ui::SurveyWindow &ui)
{
    FitGrid(*ui.fgrdHDT, {8, 8, 11, 8, 8, 8, 8});
    FitGrid(*ui.fgrdIpResult, {16, 11, 8, 8, 8, 8});
    // Its columns stand under those of the same names.
    ui.fgrdIpResult->setColumnWidth(0, ui.fgrdHDT->columnWidth(0) + ui.fgrdHDT->columnWidth(1));
    ui.fgrdIpResult->setMinimumWidth(ui.fgrdHDT->minimumWidth());
    FitGrid(*ui.fgrdResult, {10, 12});
    FitGrid(*ui.fgrdListCorrection, {6, 6, 6, 6});
    FitGrid(*ui.fgrdFinalResult, {21, 12});
    ui.fgrdDeduction->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    ui.fgrdDeduction->setColumnWidth(1, DigitsWidth(*ui.fgrdDeduction, 12) + kCellMargins);
}

void SetEntryOrder(const Ui::SurveyWindow &ui, QWidget &quantity)
{
    QWidget *const order[] = {ui.dcbShip,        ui.dcbVoyageID, ui.dcbPort,    ui.txtCargo,   ui.txtDensity,
                              ui.mbxDate,        ui.mbxTime,     ui.txtFwdPort, ui.txtFwdStbd, ui.txtMidShipPort,
                              ui.txtMidshipStbd, ui.txtAftPort,  ui.txtAftStbd, &quantity,     ui.txtComments};
    for (std::size_t i = 1; i < std::size(order); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}
