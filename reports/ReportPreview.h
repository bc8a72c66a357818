#pragma once

#include "core/numeric/Port.h"

#include <QWidget>

#include <functional>

class QAction;
class QComboBox;
class QLabel;
class QScrollArea;
class QToolBar;
class Report;
class ReportPage;

/// Shows a report on the screen: a page to zoom, print and save. One window for each report, which stays what it is
/// while the survey windows go on; closing it unloads the report.
class ReportPreview : public QWidget
{
    Q_OBJECT

public:
    ReportPreview(Report &report, QWidget *parent);
    ~ReportPreview() override;

    enum class Fit { None, Page, Width };

    /// 1 is true scale; kept within what can be seen and used.
    void Zoom(double zoom);
    void FitTo(Fit fit);
    [[nodiscard]] double Zoom() const;
    /// What became of the last print or PDF, below the page; nothing where it is empty.
    void Tell(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QAction *AddCommand(const QString &text, const QList<QKeySequence> &keys, const std::function<void()> &command);
    void AddCommands();
    void Step(int direction);
    void ApplyFit();
    void ShowZoom();
    void PickZoom(int index);
    void Print();
    void SaveAsPdf();

    Report &mReport;
    ReportPage *mPage;
    QScrollArea *mArea;
    QToolBar *mTools;
    QComboBox *mZooms = nullptr;
    QLabel *mTold;
    Fit mFit = Fit::Page;
};

/// Shows the report as it is filled, in a window before the one given; an open preview of it comes to the front and
/// shows it anew.
void ShowReport(Report &report, QWidget *before);
/// Takes an open preview of the report from the screen. The report stays as it is filled.
void HideReport(const Report &report);

/// Asks for the file to save to, starting from a proposed path: the machine's dialog unless another is set. Empty where
/// the user thinks better of it.
using SavePathSource = std::function<QString(QWidget *parent, const QString &proposed)>;
[[nodiscard]] Port<SavePathSource> &SavePathPort();
