#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmOpen;
}

/// Offers the windows of the program by groups, and opens the one chosen. It is no child of the main window.
class frmOpen : public QDialog
{
    Q_OBJECT

public:
    explicit frmOpen(QWidget *parent = nullptr);
    ~frmOpen() override;

    /// Every way out of the dialog comes by here.
    void done(int result) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Form_Load();
    static void Form_Unload();
    void tvOpen_NodeClick();
    void lvOpen_ItemClick();
    void ShowItems(const QString &node);
    void cmdOpen_Click();

    std::unique_ptr<Ui::frmOpen> mUi;
    QString mTargetName;
};
