// Links to the program on the desktop and in the menu of programs.
#pragma once

#include <QString>

enum class LinkFolder { Desktop, Programs };

/// Makes a link with the caption to the target file, replacing one of the same caption. Throws Error 76 if the system
/// has no such folder, 75 if the link cannot be written.
void CreateShellLink(LinkFolder folder, const QString& caption, const QString& target);
