#include "reports/ReportPreview.h"

#include "core/MsgBox.h"
#include "core/numeric/RuntimeError.h"
#include "reports/Report.h"
#include "reports/ReportPage.h"
#include "reports/ReportPdf.h"
#include "reports/ReportPrinter.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace
{
constexpr std::array kZooms {0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0};

QString AskForPath(QWidget *parent, const QString &proposed)
{
    QFileDialog dialog(parent, QObject::tr("Save as PDF"), proposed, QObject::tr("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(proposed);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

using Previews = std::map<const Report *, QPointer<ReportPreview>>;

/// The preview of each report that is not closed.
Previews &OpenPreviews()
{
    static Previews previews;
    return previews;
}

QString Percent(double zoom)
{
    return QString::number(qRound(zoom * 100)) + QStringLiteral(" %");
}
} // namespace

ReportPreview::ReportPreview(Report &report, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , mReport(report)
    , mPage(new ReportPage(report))
    , mArea(new QScrollArea)
    , mTools(new QToolBar)
    , mTold(new QLabel)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QString::fromUtf8(report.Layout().title.data()));
    setObjectName(QStringLiteral("ReportPreview"));
    mPage->setAccessibleName(windowTitle());
    mArea->setObjectName(QStringLiteral("Page"));
    mArea->setAccessibleName(tr("Page"));
    mArea->setWidget(mPage);
    mArea->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    mArea->setBackgroundRole(QPalette::Mid);
    mArea->setFrameShape(QFrame::NoFrame);
    mArea->installEventFilter(this);
    mArea->viewport()->installEventFilter(this);
    mTold->setObjectName(QStringLiteral("Told"));
    mTold->setContentsMargins(8, 2, 8, 4);
    mTold->hide();
    AddCommands();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(mTools);
    column->addWidget(mArea, 1);
    column->addWidget(mTold);
    const QSize room = screen()->availableSize();
    resize(std::min(900, room.width() * 9 / 10), room.height() * 9 / 10);
    mArea->setFocus();
}

ReportPreview::~ReportPreview() = default;

QAction *ReportPreview::AddCommand(const QString &text, const QList<QKeySequence> &keys,
                                   const std::function<void()> &command)
{
    auto *action = new QAction(text, this);
    action->setShortcuts(keys);
    action->setToolTip(text + QStringLiteral(" (") + keys.constFirst().toString(QKeySequence::NativeText)
                       + QLatin1Char(')'));
    connect(action, &QAction::triggered, this, command);
    mTools->addAction(action);
    addAction(action);
    return action;
}

void ReportPreview::AddCommands()
{
    mTools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    mTools->setMovable(false);
    AddCommand(tr("Zoom Out"), {QKeySequence::ZoomOut}, [this] { Step(-1); });
    mZooms = new QComboBox;
    mZooms->setObjectName(QStringLiteral("Zoom"));
    mZooms->setAccessibleName(tr("Zoom"));
    mZooms->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const double zoom : kZooms)
        mZooms->addItem(Percent(zoom), zoom);
    connect(mZooms, &QComboBox::activated, this, &ReportPreview::PickZoom);
    mTools->addWidget(mZooms);
    AddCommand(tr("Zoom In"), {QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)}, [this] { Step(1); });
    mTools->addSeparator();
    AddCommand(tr("Fit Page"), {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { FitTo(Fit::Page); });
    AddCommand(tr("Fit Width"), {QKeySequence(Qt::CTRL | Qt::Key_1)}, [this] { FitTo(Fit::Width); });
    mTools->addSeparator();
    AddCommand(tr("Print"), {QKeySequence::Print}, [this] { Print(); });
    AddCommand(tr("Save as PDF..."), {QKeySequence::Save}, [this] { SaveAsPdf(); });
    mTools->addSeparator();
    // A shortcut would close the preview along with an open list.
    AddCommand(tr("Close"), {QKeySequence(Qt::Key_Escape)}, [this] {
        close();
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F4));
}

double ReportPreview::Zoom() const
{
    return mPage->Zoom();
}

void ReportPreview::Zoom(double zoom)
{
    mFit = Fit::None;
    mPage->Zoom(std::clamp(zoom, kZooms.front(), kZooms.back()));
    ShowZoom();
}

void ReportPreview::FitTo(Fit fit)
{
    mFit = fit;
    ApplyFit();
}

void ReportPreview::Tell(const QString &text)
{
    mTold->setText(text);
    mTold->setVisible(!text.isEmpty());
}

void ReportPreview::ApplyFit()
{
    if (mFit == Fit::None)
        return;
    const QSize room = mArea->maximumViewportSize();
    const double width = mPage->ZoomForWidth(room.width());
    const double height = mPage->ZoomForHeight(room.height());
    if (mFit == Fit::Page || width <= height)
        mPage->Zoom(std::max(std::min(width, height), 0.1));
    else
        mPage->Zoom(mPage->ZoomForWidth(room.width() - mArea->verticalScrollBar()->sizeHint().width()));
    ShowZoom();
}

void ReportPreview::ShowZoom()
{
    QPalette readable = palette();
    readable.setBrush(QPalette::PlaceholderText, readable.buttonText());
    mZooms->setPalette(readable);
    mZooms->setPlaceholderText(Percent(Zoom()));
    mZooms->setCurrentIndex(mZooms->findText(Percent(Zoom())));
}

void ReportPreview::PickZoom(int index)
{
    Zoom(mZooms->itemData(index).toDouble());
}

void ReportPreview::Step(int direction)
{
    constexpr double kSame = 0.001;
    if (direction > 0) {
        const auto next = std::ranges::upper_bound(kZooms, Zoom() + kSame);
        Zoom(next == kZooms.end() ? kZooms.back() : *next);
    } else {
        const auto next = std::ranges::lower_bound(kZooms, Zoom() - kSame);
        Zoom(next == kZooms.begin() ? kZooms.front() : *std::prev(next));
    }
}

void ReportPreview::Print()
{
    try {
        PrintReport(mReport);
        Tell(tr("Sent to the printer."));
    } catch (const RuntimeError &) {
        MsgBox("Error while printing the report.\n\nPlease check the default printer, or save the report as PDF.",
               MsgIcon::Critical);
    }
}

void ReportPreview::SaveAsPdf()
{
    QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (!documents.exists())
        documents = QDir::home();
    const QString path = (*SavePathPort())(this, documents.filePath(PdfName(mReport)));
    if (path.isEmpty())
        return;
    const std::string shown = QDir::toNativeSeparators(path).toStdString();
    try {
        SavePdf(mReport, path);
        Tell(tr("Saved as ") + QString::fromStdString(shown));
    } catch (const RuntimeError &error) {
        MsgBox("The report could not be saved as\n" + shown + "\n\n" + error.Description(), MsgIcon::Exclamation);
    }
}

bool ReportPreview::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mArea && event->type() == QEvent::Resize)
        ApplyFit();
    if (event->type() == QEvent::Wheel) {
        const auto *wheel = static_cast<QWheelEvent *>(event);
        if (wheel->modifiers() & Qt::ControlModifier) {
            if (wheel->angleDelta().y() != 0)
                Step(wheel->angleDelta().y());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ReportPreview::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void ReportPreview::closeEvent(QCloseEvent *event)
{
    OpenPreviews().erase(&mReport);
    QWidget::closeEvent(event);
}

void ShowReport(Report &report, QWidget *before)
{
    QPointer<ReportPreview> &preview = OpenPreviews()[&report];
    if (!preview)
        preview = new ReportPreview(report, before);
    preview->Tell({});
    preview->setWindowState(preview->windowState() & ~Qt::WindowMinimized);
    preview->show();
    preview->raise();
    preview->activateWindow();
    preview->update();
    preview->findChild<ReportPage *>()->update();
}

void HideReport(const Report &report)
{
    const auto preview = OpenPreviews().find(&report);
    if (preview != OpenPreviews().end() && preview->second)
        preview->second->hide();
}

Port<SavePathSource> &SavePathPort()
{
    static Port<SavePathSource> port(AskForPath);
    return port;
}
