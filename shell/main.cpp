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
void MakeLink(bool onDesktop, const std::string& caption, const std::string& programFile) {
    CreateShellLink(onDesktop ? LinkFolder::Desktop : LinkFolder::Programs, FromText(caption),
                    FromPath(DataPath(programFile).string()));
}
}  // namespace

int main(int argc, char** argv) {
    std::optional<FontScan> fonts(std::in_place);
    QApplication application(argc, argv);
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
    window->startUp();
    window->show();
    // What nobody sees or needs in the first moment waits until the calendar is on the screen.
    QTimer::singleShot(0, window, [] { QApplication::setWindowIcon(ProgramIcon()); });
    QTimer::singleShot(1000, window, CheckPrinter);
    return QApplication::exec();
}
