// Texts on labels.
#include "forms/qt/text.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

#include "forms/qt/fittingLabel.h"

TEST(FittingLabel, ShowsTheBeginningAndTellsTheWholeText) {
    const QString text = QStringLiteral("23: Celebration: <b>Zoe</b>");
    FittingLabel label(text, nullptr);
    const auto tipOf = [&] {
        QHelpEvent asked(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QCoreApplication::sendEvent(&label, &asked);
        return QToolTip::text();
    };
    label.resize(label.fontMetrics().horizontalAdvance(text) + 2, 20);
    EXPECT_EQ(label.fitting(), text);
    EXPECT_EQ(tipOf(), QString());
    label.resize(60, 20);
    EXPECT_TRUE(label.fitting().startsWith(QStringLiteral("23: ")) && label.fitting() != text);
    EXPECT_EQ(tipOf(), QStringLiteral("<qt>23: Celebration: &lt;b&gt;Zoe&lt;/b&gt;</qt>"));
    EXPECT_EQ(label.minimumSizeHint().width(), 0) << "its window stays as wide as it is";
}

TEST(ToolTips, AreReadAsTheyWereTyped) {
    for (const char* text : {"R&D: Tom & Ann \"x\"", "5 < 6 & 7", "<b>bold</b>", "&lt;b&gt;"}) {
        const QString tip = TipOf(QString::fromLatin1(text));
        QTextDocument markup;
        markup.setHtml(tip);
        EXPECT_EQ(Qt::mightBeRichText(tip) ? markup.toPlainText() : tip, QLatin1String(text));
    }
}
