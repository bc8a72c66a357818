#pragma once

#include "core/numeric/Port.h"

#include <QString>

#include <memory>

/// What the windows ask of the desktop.
class Shell
{
public:
    virtual ~Shell() = default;
    /// Opens a web address or a mail link. A box tells where nothing here does.
    virtual void OpenLink(const QString &address, const QString &workingDirectory) = 0;
    /// Shows the help file, or "help/index.html" beside it where the file cannot be shown; a box tells where nothing
    /// here shows either. What has to be asked of the desktop first is not waited for.
    virtual void ShowHelp(const QString &file) = 0;
    /// Starts the calculator or the text editor of the machine. ProgramNotFound (53) where none can be started.
    virtual void StartCalculator() = 0;
    virtual void StartNotepad() = 0;
};

[[nodiscard]] Shell &DesktopShell();
using ShellSource = std::unique_ptr<Shell>;
[[nodiscard]] Port<ShellSource> &ShellPort();
