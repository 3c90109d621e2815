// The help window and the side panel's help.
#include "notes/frmHelp.h"

#include "marks/frmColors.h"
#include "notes/frmHelpPanel.h"
#include "notes/frmToDo.h"
#include "reminders/frmAlert.h"
#include "reminders/frmBDay.h"
#include "reminders/frmHolidays.h"
#include "shell/frmMain.h"
#include "tests/support/window_test.h"
#include "tools/frmAlarm.h"

namespace {
struct HelpWindow : WindowTest {
    HelpPanel panel;

    void read(const std::string& file) const {
        folder.put("Help_Topics.txt", file);
        ReadHelpTopics();
    }
};
}  // namespace

TEST_F(HelpWindow, ShowsTheTopicOfThePanelAndFindsPhrases) {
    read("*One:\r\nfirst\r\n*Two:\r\n1\r\n2\r\n3 Calendar VIEW\r\ncalendar view\r\n*Three:\r\nthird");
    EXPECT_EQ(panel.txtHelp->toPlainText(), QStringLiteral("first"));
    panel.cmbHelp->setCurrentIndex(1);
    Q_EMIT panel.cmbHelp->activated(1);
    EXPECT_EQ(panel.txtHelp->toPlainText(), QStringLiteral("1\n2\n3 Calendar VIEW\ncalendar view"));
    QTest::mouseClick(panel.imgHelp, Qt::LeftButton);
    auto* window = OpenedWindow<frmHelp>();
    EXPECT_EQ(window->txtHelp->toPlainText(), panel.txtHelp->toPlainText());
    window->lstHelp->setCurrentRow(2);
    EXPECT_EQ(window->txtHelp->toPlainText(), QStringLiteral("third"));
    OpenHelp();
    EXPECT_EQ(window->lstHelp->count(), 3);
    auto* const again = window->cmdSearch[1];
    EXPECT_FALSE(again->isEnabled());
    for (const auto& [phrase, told] :
         {std::pair{"", "Nothing to search for."}, {"absent", "Search Phrase not Found"}}) {
        window->txtSearch->setText(QLatin1String(phrase));
        click(window->cmdSearch[0], told);
    }
    window->txtSearch->setText(QStringLiteral("calendar view"));
    for (int times = 0; times < 2; ++times) {
        window->cmdSearch[0]->click();
        EXPECT_EQ(window->lstHelp->currentRow(), 1);
        EXPECT_EQ(window->txtHelp->textCursor().selectedText(), QStringLiteral("Calendar VIEW"));
        QTest::keyClick(again, Qt::Key_Return);
        EXPECT_EQ(window->txtHelp->textCursor().selectedText(), QStringLiteral("calendar view"));
        click(again, "End of Search");
        EXPECT_FALSE(again->isEnabled());
    }
    dialogs.expect("null search");
    window->item(QStringLiteral("mnuHelp"))->trigger();
}

TEST_F(HelpWindow, ExplainsEveryMenuCommand) {
    const Path data = TASMORO_DATA;
    read(ReadWholeFile(data / "Help_Topics.txt"));
    folder.put("Holidays/2026Holidays.dat", "12/25/26:Christmas Day\r\n");
    folder.put("Marker Colors.dat", ReadWholeFile(data / "Marker Colors.dat"));
    QString all;
    for (const auto& text : HelpTexts) all += FromText(text);
    const std::vector<QWidget*> windows{LoadedWindow<frmMain>(), LoadedWindow<frmColors>(),  LoadedWindow<frmToDo>(),
                                        LoadedWindow<frmHelp>(), LoadedWindow<frmAlarm>(),   LoadedWindow<frmAlert>(),
                                        LoadedWindow<frmBDay>(), LoadedWindow<frmHolidays>()};
    int commands = 0;
    for (const QWidget* window : windows) {
        for (const QAction* item : window->findChildren<QAction*>()) {
            if (!item->objectName().startsWith(QStringLiteral("mnu")) || item->menu() != nullptr) continue;
            const bool category = item->objectName().contains(QLatin1Char('('));
            const QString caption = WithoutMnemonic(item->text());
            const QString sought = category ? caption : QLatin1Char('"') + caption + QLatin1Char('"');
            EXPECT_TRUE(all.contains(sought)) << "no topic explains " << caption.toStdString();
            ++commands;
        }
    }
    EXPECT_GT(commands, 90);
}
