// Links to the program, written into a home folder of the test's own.
#include "forms/qt/shellLink.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QStandardPaths>

#include "base/errors.h"
#include "forms/qt/text.h"
#include "tests/support/folder.h"

#ifdef Q_OS_LINUX
namespace {
TEST(ShellLink, StartsTheProgramWhereverItsFolderIs) {
    const TemporaryFolder folder;
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QByteArray::fromStdString((folder.path() / "home").string()));
    folder.put("My \"stick\" 100%/tasmoro", "");
    const QString target = FromPath((folder.path() / "My \"stick\" 100%/tasmoro").string());
    CreateShellLink(LinkFolder::Desktop, QStringLiteral("Shortcut to Tasmoro"), target);
    const QString link = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) +
                         QStringLiteral("/Shortcut to Tasmoro.desktop");
    const std::string text = ReadWholeFile(link.toStdString());
    EXPECT_NE(text.find("Exec=\"" + folder.path().string() + "/My \\\\\"stick\\\\\" 100%%/tasmoro\"\n"),
              std::string::npos)
        << text;
    EXPECT_TRUE(QFileInfo(link).isExecutable());
    EXPECT_TRUE(folder.get("My \"stick\" 100%/Tasmoro.png").starts_with("\x89PNG"));
    folder.put("home2", "a file where the home folder should be");
    qputenv("HOME", QByteArray::fromStdString((folder.path() / "home2").string()));
    EXPECT_THROW(CreateShellLink(LinkFolder::Programs, QStringLiteral("Shortcut to Tasmoro"), target), Error);
    qputenv("HOME", home);
}
}  // namespace
#endif
