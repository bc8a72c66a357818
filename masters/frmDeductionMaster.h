#pragma once

#include "masters/MasterWindow.h"

#include <memory>

namespace Ui
{
class frmDeductionMaster;
}

/// Adds, changes and deletes the deductible items of the surveys. No menu item opens it.
class frmDeductionMaster : public MasterWindow
{
    Q_OBJECT

public:
    explicit frmDeductionMaster(QWidget *parent = nullptr);
    ~frmDeductionMaster() override;

    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    [[nodiscard]] QString BoxHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    std::unique_ptr<Ui::frmDeductionMaster> ui;
};
