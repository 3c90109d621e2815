// Texts on labels.
#include "forms/qt/text.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTextDocument>

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
    EXPECT_EQ(label.toolTip(), QStringLiteral("<qt>23: Celebration: &lt;b&gt;Zoe&lt;/b&gt;</qt>"));
}

TEST(ToolTips, AreReadAsTheyWereTyped) {
    for (const char* text : {"R&D: Tom & Ann \"x\"", "5 < 6 & 7", "<b>bold</b>", "&lt;b&gt;"}) {
        const QString tip = TipOf(QString::fromLatin1(text));
        QTextDocument markup;
        markup.setHtml(tip);
        EXPECT_EQ(Qt::mightBeRichText(tip) ? markup.toPlainText() : tip, QLatin1String(text));
    }
}
