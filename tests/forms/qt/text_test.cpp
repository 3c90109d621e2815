// Texts on labels.
#include "forms/qt/text.h"

#include <gtest/gtest.h>

#include <QLabel>

TEST(FittingText, IsShortenedOnTheLabelAndWholeInTheToolTip) {
    QLabel label;
    const QString text = QStringLiteral("23: Celebration: <b>Zoe</b>");
    label.resize(label.fontMetrics().horizontalAdvance(text) + 2, 20);
    ShowFitting(&label, text);
    EXPECT_EQ(label.text(), text);
    EXPECT_EQ(label.toolTip(), QString());
    label.resize(60, 20);
    ShowFitting(&label, text);
    EXPECT_TRUE(label.text().startsWith(QStringLiteral("23: ")) && label.text() != text);
    EXPECT_EQ(label.toolTip(), QStringLiteral("23: Celebration: &lt;b&gt;Zoe&lt;/b&gt;"));
}
