// The command that puts links to the program on the desktop and among the programs.
#include "shell/modShortcuts.h"

#include "base/dialogs.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/modNoCase.h"

std::function<void(bool, const std::string&, const std::string&)> MakeShellLink;

namespace {
#ifdef _WIN32
constexpr const char* ProgramFile = "Tasmoro.exe";
constexpr const char* UpdaterFile = "Tasmoro Updater.exe";
#else
constexpr const char* ProgramFile = "tasmoro";
constexpr const char* UpdaterFile = "tasmoro-updater";
#endif

/// A target that is not installed gets no link.
void LinkTo(bool onDesktop, const char* caption, const char* file) {
    if (MakeShellLink && FileExists(DataFolder(), file)) MakeShellLink(onDesktop, caption, file);
}
}  // namespace

void CreateShortcuts() {
    try {
        for (const bool onDesktop : {true, false}) {
            LinkTo(onDesktop, "Shortcut to Tasmoro", ProgramFile);
            LinkTo(onDesktop, "Tasmoro Upgrade Manager", UpdaterFile);
        }
        ShowMessage("A Shortcut has been successfully added to Programs.");
    } catch (const Error& error) {
        ShowMessage("Unable to Create Shortcut : " + std::to_string(error.number()) + " : " + error.what());
    }
}
