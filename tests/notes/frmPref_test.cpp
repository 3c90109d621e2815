// The window of the preferences of terms.
#include "notes/frmPref.h"

#include "shell/modPreferences.h"
#include "tests/support/window_test.h"

namespace {
struct PrefWindow : WindowTest {
    frmPref* window = nullptr;

    PrefWindow() {
        dialogs.expect("GetUserPreferences");  // there is no file yet
        GetUserPreferences();
        SaveTermsPreferences(true, 2, true, false);
        window = ShowWindow<frmPref>();
    }
};
}  // namespace

TEST_F(PrefWindow, ShowsThePreferencesAndLeavesWithoutSaving) {
    EXPECT_EQ(window->txtStartPos->text(), QStringLiteral("3"));
    EXPECT_TRUE(window->chkShowFUT->isChecked() && !window->chkACEnable->isChecked());
    const std::string file = folder.get("UserPreferences.txt");
    window->chkMinimizeFUT->click();
    QTest::keyClick(window->txtStartPos, Qt::Key_9);
    window->cmdExit->click();
    EXPECT_EQ(folder.get("UserPreferences.txt"), file);
}

TEST_F(PrefWindow, SavesWhatIsSet) {
    for (const auto& [typed, start] : {std::pair{"5", 4}, {"0", 0}, {"12", 11}, {"a1-", 0}, {"", 0}}) {
        window = ShowWindow<frmPref>();
        window->txtStartPos->clear();
        QTest::keyClicks(window->txtStartPos, QString::fromLatin1(typed));
        window->chkACEnable->click();
        window->chkShowFUT->click();
        const bool off = window->chkACEnable->isChecked();
        const bool show = window->chkShowFUT->isChecked();
        window->cmdSave->click();
        EXPECT_EQ(OpenedWindow<frmPref>(), nullptr);
        EXPECT_EQ(AutoStartPosition, start) << typed;
        EXPECT_TRUE(AutoCompleteOn == !off && Preferences.showTerms == show);
    }
}
