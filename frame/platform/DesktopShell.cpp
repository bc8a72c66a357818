#include "core/MsgBox.h"
#include "core/numeric/RuntimeError.h"
#include "frame/platform/Shell.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <functional>

namespace
{
[[maybe_unused]] const QStringList kCalculators
    = {"gnome-calculator", "kcalc", "galculator", "qalculate-gtk", "mate-calc", "xcalc"};
[[maybe_unused]] const QStringList kTextEditors
    = {"gnome-text-editor", "gedit", "kate", "kwrite", "mousepad", "pluma", "xed", "featherpad", "xedit"};

// The entries of the desktop's own program list, one file each.
struct DesktopEntry {
    QStringList command;
    QStringList categories;
};

// A list is separated by semicolons; a command's placeholders such as %U stand for files, of which there are none.
DesktopEntry ReadEntry(const QString &path)
{
    QFile file(path);
    DesktopEntry entry;
    QString group;
    if (!file.open(QIODevice::ReadOnly))
        return entry;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith('['))
            group = line;
        if (group != "[Desktop Entry]")
            continue;
        if (line.startsWith("Exec="))
            entry.command = QProcess::splitCommand(line.mid(5));
        else if (line.startsWith("Categories="))
            entry.categories = line.mid(11).split(';', Qt::SkipEmptyParts);
        else if (line == "NoDisplay=true" || line == "Hidden=true" || line == "Terminal=true")
            return {};
    }
    entry.command.removeIf([](const QString &part) { return part.startsWith('%'); });
    return entry;
}

bool Start(const QStringList &command)
{
    return !command.isEmpty() && !QStandardPaths::findExecutable(command.first()).isEmpty()
        && QProcess::startDetached(command.first(), command.mid(1));
}

bool StartAnyOf(const QStringList &programs)
{
    return std::any_of(programs.begin(), programs.end(), [](const QString &program) { return Start({program}); });
}

bool StartRegisteredCalculator()
{
    for (const QString &folder : QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation)) {
        for (const QFileInfo &file : QDir(folder).entryInfoList({"*.desktop"}, QDir::Files, QDir::Name)) {
            const DesktopEntry entry = ReadEntry(file.filePath());
            if (entry.categories.contains("Calculator") && Start(entry.command))
                return true;
        }
    }
    return false;
}

const QString kRegistry = QStringLiteral("xdg-mime");

using Answer = std::function<void(const QString &entry)>;

// Asks for the file name of the desktop entry that opens files of a kind; empty where there is none. The answer comes
// later, from the event loop, and not at all once the program ends.
void AskRegisteredFor(const char *mimeType, Answer answer)
{
    auto *query = new QProcess(qApp);
    const auto finish = [query, answer = std::move(answer)] {
        query->disconnect();
        query->deleteLater();
        // From an event of its own, so that a failure ends as that of any other event does.
        QTimer::singleShot(
            0, qApp, [answer, entry = QString::fromUtf8(query->readAllStandardOutput()).trimmed()] { answer(entry); });
    };
    QObject::connect(query, &QProcess::finished, qApp, finish);
    QObject::connect(query, &QProcess::errorOccurred, qApp, finish);
    constexpr int patience = 3000; // milliseconds
    QTimer::singleShot(patience, query, &QProcess::kill);
    query->start(kRegistry, {"query", "default", mimeType});
}

void OpenOrTell(const QUrl &place)
{
    if (!QDesktopServices::openUrl(place))
        MsgBox("No program was found here to open\n\n" + place.toDisplayString(QUrl::PreferLocalFile).toStdString(),
               MsgIcon::Exclamation);
}

void ShowPages(const QString &helpFile)
{
    const QFileInfo pages(QFileInfo(helpFile).dir(), "help/index.html");
    if (pages.exists())
        OpenOrTell(QUrl::fromLocalFile(pages.filePath()));
}

void ShowFile(const QString &helpFile)
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(helpFile)))
        ShowPages(helpFile);
}

void NeedStarted(bool started)
{
    if (!started)
        throw RuntimeError(ErrorNumber::ProgramNotFound);
}

class Desktop : public Shell
{
public:
    void OpenLink(const QString &address, const QString & /*workingDirectory*/) override { OpenOrTell(QUrl(address)); }

    void ShowHelp(const QString &file) override
    {
        if (!QFile::exists(file)) {
            ShowPages(file);
            return;
        }
#ifdef Q_OS_WIN
        ShowFile(file);
#else
        // Where nothing is registered the desktop's opener starts all the same, and fails unseen.
        AskRegisteredFor("application/vnd.ms-htmlhelp", [file](const QString &entry) {
            if (!entry.isEmpty())
                ShowFile(file);
            else
                AskRegisteredFor("application/x-chm",
                                 [file](const QString &other) { other.isEmpty() ? ShowPages(file) : ShowFile(file); });
        });
#endif
    }

    void StartCalculator() override
    {
#ifdef Q_OS_WIN
        NeedStarted(StartAnyOf({"calc.exe"}));
#else
        NeedStarted(StartRegisteredCalculator() || StartAnyOf(kCalculators));
#endif
    }

    void StartNotepad() override
    {
#ifdef Q_OS_WIN
        NeedStarted(StartAnyOf({"Notepad.exe"}));
#else
        if (QStandardPaths::findExecutable(kRegistry).isEmpty())
            NeedStarted(StartAnyOf(kTextEditors));
        else
            AskRegisteredFor("text/plain", [](const QString &entry) {
                const QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry);
                NeedStarted((!entry.isEmpty() && Start(ReadEntry(path).command)) || StartAnyOf(kTextEditors));
            });
#endif
    }
};
} // namespace

Shell &DesktopShell()
{
    return **ShellPort();
}

Port<ShellSource> &ShellPort()
{
    static Port<ShellSource> port(std::make_unique<Desktop>());
    return port;
}
