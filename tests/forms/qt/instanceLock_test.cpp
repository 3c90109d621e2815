// The lock of a data folder where no lock can be had; what it refuses the test of the real program shows.
#include "forms/qt/instanceLock.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

TEST(InstanceLock, AllowsTheStartWhereNoFileCanBeMade) {
    const QTemporaryDir folder;
    EXPECT_TRUE(TakeInstanceLock(folder.filePath(QStringLiteral("missing"))));
    QDir(folder.path()).mkdir(QStringLiteral("Tasmoro.lock"));
    EXPECT_TRUE(TakeInstanceLock(folder.path()));
}
