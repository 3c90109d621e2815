// Start-up without windows and the commands of the pickers.
#include "shell/modStart.h"

#include "marks/modIcons.h"
#include "reminders/modAlerts.h"
#include "shell/modPreferences.h"
#include "shell/modShortcuts.h"
#include "tests/support/calendar.h"

namespace {
class Start : public CalendarTest {};

TEST_F(Start, YearOfThePickerIsCompleted) {
    for (const auto& [typed, full] :
         {std::pair{"9", "2009"}, std::pair{"09", "2009"}, std::pair{"30", "1930"}, std::pair{"2009", "2009"},
          std::pair{"abc", "abc"}, std::pair{"", ""}, std::pair{"20266", "20266"}})
        EXPECT_EQ(FullYearText(typed), full) << typed;
}

TEST_F(Start, PickersTakeAnyYearRefuseImpossibleDatesAndDrawTheCurrentView) {
    const auto show = [this](const char* picked, int view) {
        pickers = picked;
        ShowViewOfPickers("imgOpt_Click", view);
        return caption;
    };
    EXPECT_EQ(show("August 15 2026", 0), "") << "there is no view yet";
    EXPECT_EQ(SelectedDate, MakeDate(2026, 8, 15));
    EXPECT_EQ(show("March 9 1900", 12), "Tasmoro: 1900 Calendar");
    EXPECT_EQ(show("February 29 9996", 1), "Tasmoro: Feb 9996 Calendar");
    dialogs.expect("An error occurred in imgOpt_Click.\r\nError Number: 13\r\nError Description: Type mismatch");
    EXPECT_EQ(show("February 30 2026", 0), "Tasmoro: Feb 9996 Calendar");
    EXPECT_EQ(SelectedDate, MakeDate(9996, 2, 29));
    EXPECT_EQ(show("August 15 2026", 0), "Tasmoro: Aug 2026 Calendar");
}

TEST_F(Start, TemplateLeftAtTheQuestionGoesFromTheScreenThoughTheDateIsNone) {
    TemplateDate = MakeDate(2026, 1, 1);
    TemplateMode = true;
    show(1, 2026, 11, 22);
    IconsChanged = true;
    pickers = "February 30 2026";
    dialogs.expect("Do you want to save those changes?", Answer::No);
    dialogs.expect("Type mismatch");
    ShowViewOfPickers("imgOpt_Click", 12);
    EXPECT_EQ(caption, "Tasmoro: Nov 2026 Calendar");
}

TEST_F(Start, EveryStepThatFailsReportsAndTheNextOneRuns) {
    folder.put("UserPreferences.txt", "");
    folder.put("Marker Colors.dat", "Meeting\r\n");
    folder.put("Alerts.dat", "46350:0003:Order the cake\r\nbroken\r\n");  // 24 November 2026
    folder.put("Birthdays.dat", "oops\r\n11/25:07:Ana:1990\r\n");
    for (const char* step : {"GetUserPreferences", "ReadMarkerColors", "ReadAlerts", "ReadBirthdays"})
        dialogs.expect("An error occurred in " + std::string(step) + ".");
    LoadPlanner();
    EXPECT_EQ(SelectedDate, MakeDate(2026, 11, 22));
    EXPECT_EQ(PendingAlertCount, 1);
    EXPECT_EQ(DateHolders(10, 0, 3).view(), "11/22/26");
}

TEST_F(Start, ShortcutsAreMadeForWhatIsInstalled) {
    std::vector<std::string> made;
    MakeShellLink = [&](bool onDesktop, const std::string& name, const std::string& file) {
        made.push_back((onDesktop ? "desktop " : "programs ") + name + " " + file);
    };
    folder.put("tasmoro", "");
    folder.put("Tasmoro.exe", "");
    dialogs.expect("A Shortcut has been successfully added to Programs.");
    CreateShortcuts();
    ASSERT_EQ(made.size(), 2u);  // no upgrade manager is installed
    EXPECT_TRUE(made[0].starts_with("desktop Shortcut to Tasmoro "));
    EXPECT_TRUE(made[1].starts_with("programs Shortcut to Tasmoro "));
    MakeShellLink = [](bool, const std::string&, const std::string&) { throw Error(PermissionDenied); };
    dialogs.expect("Unable to Create Shortcut : 70 : Permission denied");
    CreateShortcuts();
    MakeShellLink = nullptr;
}
}  // namespace
