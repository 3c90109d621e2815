// The window of the preferences of terms.
#include "notes/frmPref.h"

#include "shell/modPreferences.h"
#include "tests/support/window_test.h"

using PrefWindow = WindowTest;

TEST_F(PrefWindow, ShowsSavesAndLeavesAsTheyWereThePreferences) {
    dialogs.expect("GetUserPreferences");  // there is no file yet
    GetUserPreferences();
    SaveTermsPreferences(true, 2, true, false);
    const std::string file = folder.get("UserPreferences.txt");
    auto* window = ShowWindow<frmPref>();
    EXPECT_EQ(window->txtStartPos->text(), QStringLiteral("3"));
    EXPECT_TRUE(window->chkShowFUT->isChecked() && !window->chkACEnable->isChecked());
    window->chkMinimizeFUT->click();
    QTest::keyClick(window->txtStartPos, Qt::Key_9);
    window->cmdExit->click();
    EXPECT_EQ(folder.get("UserPreferences.txt"), file);
    for (const auto& [typed, start] : {std::pair{"5", 4}, {"0", 0}, {"12", 11}, {"a1-", 0}, {"", 0}}) {
        const auto [minimize, show, complete] =
            std::tuple(Preferences.minimizeTerms, Preferences.showTerms, AutoCompleteOn);
        window = ShowWindow<frmPref>();
        window->txtStartPos->clear();
        QTest::keyClicks(window->txtStartPos, QString::fromLatin1(typed));
        for (auto* box : {window->chkACEnable, window->chkShowFUT, window->chkMinimizeFUT}) box->click();
        window->cmdSave->click();
        EXPECT_EQ(OpenedWindow<frmPref>(), nullptr);
        EXPECT_EQ(AutoStartPosition, start) << typed;
        EXPECT_TRUE(Preferences.minimizeTerms != minimize && Preferences.showTerms != show &&
                    AutoCompleteOn != complete);
    }
}
