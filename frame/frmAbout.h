#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmAbout;
}

/// The first window that the user sees, and the Help menu's About box. It has no border and goes by its button only.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(QWidget *parent = nullptr);
    ~frmAbout() override;

    /// Nothing: neither Esc nor the platform's close key dismisses the box.
    void reject() override { }

private:
    void cmdContinue_Click();

    std::unique_ptr<Ui::frmAbout> mUi;
};
