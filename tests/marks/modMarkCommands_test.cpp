// Marking days in the views, attaching hover texts, and taking marks away.
#include "marks/modMarkCommands.h"

#include "marks/modHoverText.h"
#include "marks/modLabels.h"
#include "marks/modMarkerDisplay.h"
#include "marks/modMarks.h"
#include "reminders/modBirthdays.h"
#include "tests/support/calendar.h"

namespace {
constexpr int MeetingItem = 9;
constexpr int TravelItem = 10;

struct MarkCommands : CalendarTest {
    ~MarkCommands() override { OpenBirthdayManager = OpenHolidayManager = {}; }

    std::string file(int year = 2026) const { return folder.get(std::to_string(year) + "Marks.dat"); }
    void markAs(int item, const std::string& hoverText) {
        dialogs.expectInput("Optional Hover Text", hoverText);
        MarkSelectedDateAs(item);
    }
};
}  // namespace

TEST_F(MarkCommands, MarkIsPaintedSavedAndGivenItsText) {
    for (const int view : {1, 6, 12}) {
        SCOPED_TRACE(view);
        folder.put("2026Marks.dat", "");
        show(view, 2026, 2, 1);
        EXPECT_TRUE(click(2026, 2, 11));
        markAs(MeetingItem, "Budget - 9:30");
        EXPECT_EQ(file(), "01:03:01:255-Budget - 9:30");
        EXPECT_EQ(painted(2026, 2, 11), MeetingColor);
        EXPECT_EQ(hoverText(2026, 2, 11), "Meeting: Budget - 9:30");
        EXPECT_TRUE(enabled["mnuOptDateClearMark"] && !enabled["mnuOptDateQuickMark"]);
        click(2026, 2, 12);
        QuickMarkSelectedDate();
        EXPECT_EQ(file(), "01:03:01:255-Budget - 9:30\r\n01:04:01:8421376");
        EXPECT_EQ(painted(2026, 2, 12), QuickMarksColor);
        markAs(TravelItem, "");
        EXPECT_EQ(file(), "01:03:01:255-Budget - 9:30\r\n01:04:01:8388608");
    }
}

TEST_F(MarkCommands, HoverTextIsSavedWithItsMarkAndAnEmptyOneChangesNothing) {
    folder.put("2026Marks.dat", "08:03:01:255-old");
    folder.put("2027Marks.dat", "00:03:01:255");
    show(6, 2026, 9, 1);
    click(2026, 9, 9);
    for (const auto& [answer, saved] :
         {std::pair{"", "old"}, {"Lunch - 12:30", "Lunch - 12:30"}, {"two\r\nlines", "two  lines"}}) {
        dialogs.expectInput("Optional Hover Text for Sep 09, 2026", answer);
        AttachHoverText();
        EXPECT_EQ(file(), std::string("08:03:01:255-") + saved);
    }
    EXPECT_EQ(dialogs.shown()[1].preset, "old");
    click(2027, 1, 6);
    dialogs.expectInput("Jan 06, 2027", "Winter");
    AttachHoverText();
    EXPECT_EQ(file(2026) + file(2027), "08:03:01:255-two  lines00:03:01:255-Winter");
    click(2026, 9, 10);
    dialogs.expect("Mark the date first.");
    AttachHoverText();
}

TEST_F(MarkCommands, DaysOfOtherYearsGoToTheirOwnFilesAndAClearedTextReturnsWithTheNextMark) {
    folder.put("2026Marks.dat", "01:03:01:255");
    show(6, 2026, 9, 1);
    click(2027, 1, 6);
    markAs(MeetingItem, "far");
    EXPECT_EQ(file(2027), "00:03:01:255-far");
    EXPECT_EQ(file(2026), "01:03:01:255");
    EXPECT_EQ(painted(2027, 1, 6), MeetingColor);
    ClearMarkFromSelectedDate();
    EXPECT_EQ(file(2027), "");
    EXPECT_EQ(folder.get("2027Marks.bak"), "00:03:01:255-far");
    EXPECT_TRUE(enabled["mnuOptDateQuickMark"] && !enabled["mnuOptDateClearMark"]);
    EXPECT_EQ(painted(2027, 1, 6), Black) << "a plain number again, and the months on display stay";
    QuickMarkSelectedDate();
    EXPECT_EQ(file(2027), "00:03:01:8421376-far") << "the selected day is still the one of next year";

    folder.put("2030Marks.dat", "00:02:00:255-kept");  // is not loaded
    show(12, 2026, 2, 1);
    SelectDate(MakeDate(2030, 1, 2));
    QuickMarkSelectedDate();
    EXPECT_EQ(file(2030), "00:02:00:255-kept\r\n00:03:00:8421376");
    EXPECT_EQ(painted(2030, 1, 2), QuickMarksColor);
}

TEST_F(MarkCommands, EmptyCellsTakeNoMark) {
    show(6, 2026, 9, 1);
    click(2026, 9, 15);
    for (const std::size_t month : {0u, 4u}) {
        EXPECT_FALSE(SelectAt(ShownMonths.at(month), 6.5, 6.2));
        MarkSelectedDateAs(MeetingItem);
        QuickMarkSelectedDate();
        ClearMarkFromSelectedDate();
        AttachHoverText();
    }
    EXPECT_EQ(file(2026) + file(2027), "(none)(none)");
}

TEST_F(MarkCommands, BirthdaysAndHolidaysAreLeftToTheirManagers) {
    folder.put("Holidays/2026Holidays.dat", "02/11/26:Valentine\r\n02/12/26:Other\r\n");
    folder.put("Birthdays.dat", "02/12:00:Ann:****\r\n");
    ReadBirthdays();
    show(12, 2026, 2, 1);
    for (const auto& [day, message] : {std::pair{11, "Use the Holiday Manager to remove this mark."},
                                       {12, "Use the Birthday Manager to remove this mark."}}) {
        click(2026, 2, day);
        dialogs.expect(message);
        ClearMarkFromSelectedDate();
    }
    ShowCategory(BirthdayCategory, false);
    ShowCategory(HolidayCategory, false);
    ClearMarkFromSelectedDate();

    std::string opened;
    OpenBirthdayManager = [&](Date date) { opened += "birthday " + ShortDate(date); };
    OpenHolidayManager = [&](Date date) { opened += " holiday " + ShortDate(date); };
    MarkSelectedDateAs(BirthdayCategory);
    MarkSelectedDateAs(HolidayCategory);
    EXPECT_EQ(opened, "birthday 2/12/2026 holiday 2/12/2026");
    EXPECT_TRUE(MarkFlag(1, 4, 1) && file() == "(none)");
    MarkerCaption[BirthdayCategory] = "Name day";
    markAs(BirthdayCategory, "");
    EXPECT_EQ(file(), "01:04:01:8388736");
}

TEST_F(MarkCommands, YearsMarksAreDeletedAfterAQuestion) {
    for (const char* name : {"2026Marks.dat", "2027Marks.dat"}) folder.put(name, "01:03:01:255-text");
    show(12, 2026, 2, 1);
    dialogs.expect("Are you sure you want to clear all this year's marks?", Answer::No);
    DeleteThisYearsMarks();
    EXPECT_EQ(painted(2026, 2, 11), MeetingColor);
    dialogs.expect("Preparing to clear the yearly marks", Answer::Yes);
    DeleteThisYearsMarks();
    EXPECT_EQ(painted(2026, 2, 11), Black);
    EXPECT_EQ(file(2026) + file(2027), "(none)01:03:01:255-text");
    click(2026, 2, 11);
    QuickMarkSelectedDate();
    EXPECT_EQ(file(2026), "01:03:01:8421376-text");
}

TEST_F(MarkCommands, UnreadLinesAreKeptWhateverTheCommand) {
    const std::string broken = "01:03:01:255-before\r\nbroken\r\n02:00:00:255-after";
    std::string copies;
    for (const auto command : {QuickMarkSelectedDate, ClearMarkFromSelectedDate, DeleteThisYearsMarks}) {
        folder.put("2026Marks.dat", broken);
        dialogs.expect("ReadAndDisplayThisYearsMarks");
        show(12, 2026, 2, 1);
        click(2026, 2, 11);
        if (command == DeleteThisYearsMarks) dialogs.expect("Are you sure", Answer::Yes);
        dialogs.expect("Backup");
        command();
        EXPECT_EQ(folder.backups(), copies += broken);
        dialogs.verify();
    }
}

TEST_F(MarkCommands, HidingACategoryRepaintsItsDaysAndSavesNothing) {
    folder.put("2026Marks.dat", "01:03:01:255-x");
    folder.put("Holidays/2026Holidays.dat", "02/11/26:Valentine\r\n");
    show(12, 2026, 2, 1);
    ShowCategory(9, false);
    EXPECT_EQ(painted(2026, 2, 11), HolidayColor);
    EXPECT_TRUE(TodayShown);
    ShowCategory(HolidayCategory, false);
    EXPECT_EQ(painted(2026, 2, 11), Black);
    EXPECT_FALSE(TodayShown) << "as with every category that has a part of its own";
    ShowAllMarks();
    EXPECT_EQ(painted(2026, 2, 11), MeetingColor);
    EXPECT_EQ(painted(2026, 11, 22), TodayColor);
    HideAllMarks();
    EXPECT_TRUE(painted(2026, 11, 22) == Black && painted(2026, 2, 11) == Black);
    click(2026, 2, 12);
    QuickMarkSelectedDate();
    EXPECT_EQ(file(), "01:03:01:255-x\r\n01:04:01:8421376");
    ShowAllMarks();
    show(1, 2026, 2, 1);
    ShowCategory(9, false);
    EXPECT_EQ(DayLabels.labels.size(), 2u) << "the label of the day goes at once, a holiday and a mark stay";
}
