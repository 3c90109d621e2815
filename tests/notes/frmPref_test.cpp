// The window of the preferences of terms.
#include "notes/frmPref.h"

#include <gtest/gtest.h>

#include <QTest>

#include "shell/modPreferences.h"
#include "tests/support/dialogs.h"
#include "tests/support/folder.h"

namespace {
struct PrefWindow : testing::Test {
    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    frmPref* window = nullptr;

    PrefWindow() {
        dialogs.expect("GetUserPreferences");  // there is no file yet
        GetUserPreferences();
        SaveTermsPreferences(true, 2, true, false);
        window = ShowWindow<frmPref>();
    }
    ~PrefWindow() override { UnloadAllWindows(); }
};
}  // namespace

TEST_F(PrefWindow, ShowsThePreferencesInTheSenseOfItsCaptions) {
    EXPECT_EQ(window->txtStartPos->text(), QStringLiteral("3"));
    EXPECT_FALSE(window->chkACEnable->isChecked());
    EXPECT_TRUE(window->chkShowFUT->isChecked());
    EXPECT_FALSE(window->chkMinimizeFUT->isChecked());
}

TEST_F(PrefWindow, SavesWhatIsSet) {
    struct Row {
        const char* typed;
        int start;
    };
    for (const Row& row : {Row{"5", 4}, Row{"0", 0}, Row{"12", 11}, Row{"a1-", 0}, Row{"", 0}}) {
        window = ShowWindow<frmPref>();
        window->txtStartPos->clear();
        QTest::keyClicks(window->txtStartPos, QString::fromLatin1(row.typed));
        window->chkACEnable->click();
        window->chkShowFUT->click();
        const bool off = window->chkACEnable->isChecked();
        const bool show = window->chkShowFUT->isChecked();
        window->cmdSave->click();
        EXPECT_EQ(OpenedWindow<frmPref>(), nullptr);
        EXPECT_EQ(AutoStartPosition, row.start) << row.typed;
        EXPECT_EQ(AutoCompleteOn, !off);
        EXPECT_EQ(Preferences.showTerms, show);
    }
    EXPECT_NE(folder.get("UserPreferences.txt").find("Auto Start Position:0\r\n"), std::string::npos);
}

TEST_F(PrefWindow, LeavesWithoutSaving) {
    const std::string file = folder.get("UserPreferences.txt");
    window->chkMinimizeFUT->click();
    QTest::keyClick(window->txtStartPos, Qt::Key_9);
    window->cmdExit->click();
    EXPECT_FALSE(Preferences.minimizeTerms);
    EXPECT_EQ(folder.get("UserPreferences.txt"), file);
}
