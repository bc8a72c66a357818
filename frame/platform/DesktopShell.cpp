#include "frame/platform/Shell.h"

#include "core/MsgBox.h"
#include "core/numeric/RuntimeError.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

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

// The file name of the desktop entry that opens files of a kind; empty where there is none.
QString RegisteredFor(const char *mimeType)
{
    QProcess query;
    query.start("xdg-mime", {"query", "default", mimeType});
    constexpr int patience = 3000; // milliseconds
    return query.waitForFinished(patience) ? QString::fromUtf8(query.readAllStandardOutput()).trimmed() : QString();
}

bool StartRegisteredTextEditor()
{
    const QString name = RegisteredFor("text/plain");
    return !name.isEmpty()
        && Start(ReadEntry(QStandardPaths::locate(QStandardPaths::ApplicationsLocation, name)).command);
}

// Where nothing is registered the desktop's opener starts all the same, and fails unseen.
bool OpensCompiledHelp()
{
#ifdef Q_OS_WIN
    return true;
#else
    return !RegisteredFor("application/vnd.ms-htmlhelp").isEmpty() || !RegisteredFor("application/x-chm").isEmpty();
#endif
}

void OpenOrTell(const QUrl &place)
{
    if (!QDesktopServices::openUrl(place))
        MsgBox("No program was found here to open\n\n" + place.toDisplayString(QUrl::PreferLocalFile).toStdString(),
               MsgIcon::Exclamation);
}

class Desktop : public Shell
{
public:
    void OpenLink(const QString &address, const QString & /*workingDirectory*/) override { OpenOrTell(QUrl(address)); }

    void ShowHelp(const QString &file) override
    {
        if (QFile::exists(file) && OpensCompiledHelp() && QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
            return;
        const QFileInfo pages(QFileInfo(file).dir(), "help/index.html");
        if (pages.exists())
            OpenOrTell(QUrl::fromLocalFile(pages.filePath()));
    }

    void StartCalculator() override
    {
#ifdef Q_OS_WIN
        const bool started = StartAnyOf({"calc.exe"});
#else
        const bool started = StartRegisteredCalculator() || StartAnyOf(kCalculators);
#endif
        if (!started)
            throw RuntimeError(ErrorNumber::ProgramNotFound);
    }

    void StartNotepad() override
    {
#ifdef Q_OS_WIN
        const bool started = StartAnyOf({"Notepad.exe"});
#else
        const bool started = StartRegisteredTextEditor() || StartAnyOf(kTextEditors);
#endif
        if (!started)
            throw RuntimeError(ErrorNumber::ProgramNotFound);
    }
};

std::unique_ptr<Shell> &Port()
{
    static std::unique_ptr<Shell> shell;
    return shell;
}
} // namespace

Shell &DesktopShell()
{
    if (!Port())
        Port() = std::make_unique<Desktop>();
    return *Port();
}

void SetShellPort(std::unique_ptr<Shell> shell)
{
    Port() = std::move(shell);
}
