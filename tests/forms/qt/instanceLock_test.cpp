// The lock of a data folder: refused while another program has it, free again when that program is killed.
#include "forms/qt/instanceLock.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

TEST(InstanceLock, IsOneForEachFolder) {
    const QTemporaryDir one;
    const QTemporaryDir other;
    EXPECT_TRUE(TakeInstanceLock(one.path()));
    EXPECT_FALSE(TakeInstanceLock(one.path()));
    EXPECT_TRUE(TakeInstanceLock(other.path()));
}

TEST(InstanceLock, OfAKilledProgramDoesNotBlockTheNext) {
    const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/a folder, übrigens-XXXXXX"));
    QProcess holder;
    holder.start(QStringLiteral("flock"),
                 {QStringLiteral("--no-fork"), folder.filePath(QStringLiteral("Tasmoro.lock")), QStringLiteral("sh"),
                  QStringLiteral("-c"), QStringLiteral("echo held; exec sleep 60")});
    ASSERT_TRUE(holder.waitForReadyRead());
    EXPECT_FALSE(TakeInstanceLock(folder.path()));
    holder.kill();
    holder.waitForFinished();
    EXPECT_TRUE(TakeInstanceLock(folder.path()));
}

TEST(InstanceLock, AllowsTheStartWhereNoFileCanBeMade) {
    const QTemporaryDir folder;
    EXPECT_TRUE(TakeInstanceLock(folder.filePath(QStringLiteral("missing"))));
    QDir(folder.path()).mkdir(QStringLiteral("Tasmoro.lock"));
    EXPECT_TRUE(TakeInstanceLock(folder.path()));
}
