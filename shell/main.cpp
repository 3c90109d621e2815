// The program.
#include <QApplication>
#include <QDir>
#include <QTimer>
#include <optional>
#include <utility>

#include "base/dialogs.h"
#include "base/files.h"
#include "forms/printer.h"
#include "forms/qt/boxes.h"
#include "forms/qt/instanceLock.h"
#include "forms/qt/pictures.h"
#include "forms/qt/printer.h"
#include "forms/qt/shellLink.h"
#include "forms/qt/text.h"
#include "forms/qt/warmUp.h"
#include "shell/frmMain.h"
#include "shell/modShortcuts.h"

namespace {
constexpr int FirstFrame = 16;  // ms, one frame of a usual screen

void MakeLink(bool onDesktop, const std::string& caption, const std::string& programFile) {
    CreateShellLink(onDesktop ? LinkFolder::Desktop : LinkFolder::Programs, FromText(caption),
                    FromPath(DataPath(programFile).string()));
}
}  // namespace

int main(int /*argc*/, char** argv) {
    UseFewThreads();
    std::optional<FontScan> fonts(std::in_place);
    int programNameOnly = 1;  // the program takes no options, the toolkit's own included
    QApplication application(programNameOnly, argv);
    QApplication::setApplicationName(QStringLiteral("Tasmoro"));
    QApplication::setQuitOnLastWindowClosed(false);
    InstallBoxes();
    const QString folder = QApplication::applicationDirPath();
    SetDataFolder(folder.toStdString());
    if (!TakeInstanceLock(folder)) {
        ShowMessage("Another instance of this application is already running.");
        return 0;
    }
    InstallPrinter();
    MakeShellLink = MakeLink;
    fonts.reset();  // the window asks for fonts: two scans beside each other would both be done to the end
    auto* window = new frmMain;
    window->sizeToScreen();
    // The calendar comes first; what stands beside it, and what nobody sees, follows when it is on the screen. Until it
    // is there the processors are left to those who bring it: the screen's server, the window manager.
    QObject::connect(window, &frmMain::firstPainted, window, [window] {
        QTimer::singleShot(FirstFrame, window, [window] {
            window->fillPanels();
            QApplication::setWindowIcon(ProgramIcon());
        });
        QTimer::singleShot(1000, window, CheckPrinter);
    });
    window->show();  // the window manager places it while the calendar is being drawn
    window->showCalendar();
    return QApplication::exec();
}
