// Pointing at days: what a click selects, what the hover says, in every view.
#include "calendar/modSelection.h"

#include "notes/modNotes.h"
#include "reminders/modBirthdays.h"
#include "tests/support/calendar.h"

namespace {
class Selection : public CalendarTest {
  protected:
    Selection() {
        folder.put("Holidays/2026Holidays.dat", "07/04/26:Independence Day\r\n12/25/26:Christmas Day\r\n");
        folder.put("Birthdays.dat", "07/04:05:Anna:1990\r\n07/04:05:Ben:****\r\n03/01:00:Zo\xEB:2001\r\n");
        folder.put("2026Marks.dat", "02:01:00:255-Dentist 9:30\r\n06:06:00:8388736\r\n");  // March 2, July 4
        folder.put("2027Marks.dat", "02:02:00:255-Budget");                                // March 2
        folder.put("2026/Notes.dat", "03/02/26:020100:Call the office\r\n");
        ReadBirthdays();
    }
};

TEST_F(Selection, HeaderAndEmptyCellsSelectNoDayAndForgetTheLast) {
    show(1, 2015, 2, 10);
    for (const auto& [x, y] : {std::pair{3.5, 0.3}, std::pair{3.5, 0.75}, std::pair{0.5, 5.5}, std::pair{6.9, 6.7}}) {
        ASSERT_TRUE(click(2015, 2, 14));
        EXPECT_FALSE(SelectAt(ShownMonths.front(), x, y)) << x << "," << y;
        EXPECT_FALSE(Calendar.typedIn);
        EXPECT_EQ(SelectedDate, MakeDate(2015, 2, 14));
    }
}

TEST_F(Selection, DoubleClickOpensTheNoteOnlyOfTheDayLastClicked) {
    std::string opened;
    NoteEditor.open = [&](const std::string& title, const std::string&) { opened = title; };
    show(1, 2026, 3, 10);
    click(2026, 3, 2);
    OpenNoteOfPickers();
    EXPECT_EQ(opened, "Notes for March 02, 2026");
    opened.clear();
    SelectAt(ShownMonths.front(), 3.5, 6.5);  // an empty cell
    OpenNoteOfPickers();
    EXPECT_EQ(opened, "");
    pickers = "February 30 2026";
    dialogs.expect("An error occurred in picMonth_DblClick.");
    OpenNoteOfPickers();
    EXPECT_EQ(opened, "");
    NoteEditor = {};
}

TEST_F(Selection, HoverNamesWhatIsOnTheDayAndIsSilentAboutHiddenCategories) {
    using Row = std::tuple<int, int, const char*>;
    const Row rows[] = {{3, 2, "Meeting: Dentist 9:30"},
                        {3, 1, "Birthday: Zo\xEB"},
                        {3, 3, ""},
                        {7, 4, "Birthday: Anna, Ben, Holiday: Independence Day"},  // marked in the Birthday colour, too
                        {11, 22, "Today's Date"},
                        {12, 25, "Holiday: Christmas Day"}};
    for (const int view : {12, 1})
        for (const auto& [month, day, text] : rows) {
            show(view, 2026, month, 10);
            EXPECT_EQ(hoverText(2026, month, day), text) << month << "/" << day;
        }
    click(2026, 12, 25);
    EXPECT_EQ(holidayLabel, "Holiday = Christmas Day");
    show(6, 2026, 12, 1);
    EXPECT_EQ(hoverText(2027, 3, 2), "Meeting: Budget");

    MarkerHidden[HolidayCategory] = MarkerHidden[9] = true;
    show(12, 2026, 1, 1);
    EXPECT_EQ(hoverText(2026, 12, 25) + hoverText(2026, 3, 2), "");
    EXPECT_EQ(hoverText(2026, 7, 4), "Birthday: Anna, Ben");
}

TEST_F(Selection, MenuFollowsWhatThePointerIsOver) {
    show(1, 2026, 3, 10);
    for (const auto& [day, has] : {std::pair{2, true}, {3, false}}) {
        const Hover hover = HoverAt(ShownMonths.front(), day - 0.5, 1.25);  // March 2026 begins on a Sunday
        ShowHover(hover);
        EXPECT_TRUE(hover.hasNote == has && enabled["mnuOptDateAttachHoverText"] == has) << day;
    }
    click(2026, 3, 2);
    EXPECT_TRUE(enabled["mnuOptDateClearMark"] && !enabled["mnuOptDateQuickMark"]);
}
}  // namespace
