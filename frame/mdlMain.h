#pragma once

#include "frame/ChildWindows.h"

#include <cstdint>
#include <filesystem>

/// The number of open child windows, as counted when they are opened and closed. Opening a window that is open already
/// counts too.
extern std::int16_t gOpenChildCount;

/// The program's folder: store and help file lie there.
[[nodiscard]] std::filesystem::path ProgramFolder();

/// Opens the store and shows the About box, which brings up the next window. False where that failed: the user has
/// been told, and no window is left.
[[nodiscard]] bool Main(const std::filesystem::path &store = ProgramFolder() / "DS.dat");

/// Brings up the main window.
void ShowMainWindow();
/// Brings up the tip window in the main window. It is no counted child.
void ShowTipOfDay();

/// What every command that opens a child does.
void OpenChild(ChildWindow window);
/// What every child does as the last of its Form_Unload, while it is still counted among the Forms. sendMask turns the
/// six commands off; hintOnlyAtTwo gives the Ctrl-O hint only where the Forms are exactly two, not two or less.
void ChildUnloaded(bool sendMask = true, bool hintOnlyAtTwo = false);

/// Puts a window of the main window to the middle of the screen, raised by the height of the toolbar, but never
/// outside the main window. To be called first in Form_Load. False where it could not be done.
bool CenterForm(Form &form);
