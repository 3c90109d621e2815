// List boxes under the keys.
#include "forms/qt/lists.h"

#include <gtest/gtest.h>

#include <QFocusEvent>
#include <QTest>

TEST(ListBox, TheFirstArrowKeySelectsTheRowThatHasTheFocus) {
    for (const auto& [key, rows] :
         {std::pair{Qt::Key_Down, std::array{0, 1}}, std::pair{Qt::Key_Up, std::array{0, 0}}}) {
        ListBox list;
        list.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        QFocusEvent tab(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&list, &tab);
        EXPECT_EQ(SelectedRow(&list), -1);
        for (const int row : rows) {
            QTest::keyClick(&list, key);
            EXPECT_EQ(SelectedRow(&list), row);
        }
    }
}
