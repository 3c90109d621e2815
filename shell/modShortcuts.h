// The command that puts links to the program on the desktop and among the programs.
#pragma once

#include <functional>
#include <string>

/// Makes a link: on the desktop or in the menu of programs, with a caption, to a program file beside the data. Throws
/// Error where the system refuses. Filled by the windows.
extern std::function<void(bool onDesktop, const std::string& caption, const std::string& programFile)> MakeShellLink;

/// "Create Shortcut for this Program": links to the program and, where it is installed, to its upgrade manager; then
/// the message. A failure ends the command with its own message.
void CreateShortcuts();
