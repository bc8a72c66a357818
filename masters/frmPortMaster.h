#pragma once

#include "masters/MasterWindow.h"

#include <memory>

namespace Ui
{
class frmPortMaster;
}

/// Adds, changes and deletes ports. A port takes its ships and all their surveys with it.
class frmPortMaster : public MasterWindow
{
    Q_OBJECT

public:
    explicit frmPortMaster(QWidget *parent = nullptr);
    ~frmPortMaster() override;

    void Form_Unload(bool &cancel) override;
    bool Form_KeyPress(QKeyEvent &event) override;

private:
    [[nodiscard]] QString BoxHint() const override;
    void TellLoadFailure() override;
    void AfterSave() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    std::unique_ptr<Ui::frmPortMaster> ui;
};
