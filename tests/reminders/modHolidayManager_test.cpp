// The holiday manager's list.
#include "reminders/modHolidayManager.h"

#include "reminders/modHolidays.h"
#include "tests/support/planner.h"

namespace {
struct HolidayManager : PlannerTest {
    void open(std::string_view bytes, const char* year = "2011") {
        folder.put(std::string("Holidays/") + year + "Holidays.dat", bytes);
        SelectHolidayYear(year);
    }
    std::string file() const { return folder.get("Holidays/2011Holidays.dat"); }
};

TEST_F(HolidayManager, OpensOnTheClocksYearWithoutAFile) {
    dialogs.expect("There is no Holiday List for 2026");
    OpenHolidayList();
    RemoveHoliday();
    EXPECT_EQ(SaveHoliday("7/4", " Fourth: a feast "), HolidayField::Saved);
    EXPECT_EQ(folder.get("Holidays/2026Holidays.dat"), "07/04/26: Fourth: a feast \r\n");
}

TEST_F(HolidayManager, SavesInTheSelectedYearInPlaceOfTheSameDate) {
    open("12/25/11:Christmas\r\n07/04/11:A\r\n07/04/11:B\r\n07/04/10:Stray\r\nshort\r\n");
    EXPECT_EQ(SaveHoliday("7/4/2009", "New"), HolidayField::Saved);
    EXPECT_EQ(file(), "07/04/10:Stray\r\n07/04/11:B\r\n07/04/11:New\r\n12/25/11:Christmas\r\nshort\r\n");
    EXPECT_EQ(HolidayDateShown(3) + HolidayDateShown(0) + HolidayDateShown(4), "Dec 25, 2011Jul 04, 2010short");
    EXPECT_EQ(HolidayDescription(1) + HolidayDescription(9), "B");
    dialogs.expect("Holiday List Saved. Changes will be reflected in your next calendar view.");
    CloseHolidayList();
    CloseHolidayList();
}

TEST_F(HolidayManager, RefusesWhatIsNoHoliday) {
    open("12/25/11:Christmas\r\n");
    using Row = std::tuple<const char*, const char*, const char*, HolidayField>;
    for (const auto& [date, text, message, field] :
         {Row{"  ", "X", "There's no date entered.", HolidayField::Date},
          Row{"someday", "X", "Date not recognized as entered.", HolidayField::Date},
          Row{"2/29/2012", "X", "Date not recognized as entered.", HolidayField::Date},
          Row{"2/29", "X", "Date not recognized as entered.", HolidayField::Date},
          Row{"1/1", "  ", "Please enter a description.", HolidayField::Description}}) {
        dialogs.expect(message);
        EXPECT_EQ(SaveHoliday(date, text), field) << date;
    }
    EXPECT_EQ(file(), "12/25/11:Christmas\r\n");
    open("01/01/12:New Year\r\n", "2012");
    EXPECT_EQ(SaveHoliday("Feb 29", "Leap day"), HolidayField::Saved);
    EXPECT_EQ(HolidayList.lines[1], "02/29/12:Leap day");
}

TEST_F(HolidayManager, RemovesTheClickedEntryAndKeepsTheFileAsItWas) {
    open("07/04/11:A\r\n12/25/11:Christmas\r\n");
    HolidayList.clicked = 1;
    RemoveHoliday();
    EXPECT_EQ(file(), "07/04/11:A\r\n");
    EXPECT_EQ(folder.backups(), "07/04/11:A\r\n12/25/11:Christmas\r\n");
    dialogs.expect("There is no Holiday List for 2011");
    RemoveHoliday();
    EXPECT_EQ(file(), "(none)");
}

TEST_F(HolidayManager, StartsOrLoadsTheListOfATypedYear) {
    open("07/04/11:A\r\n");
    EXPECT_TRUE(StartHolidayList("2031") && HolidayList.lines.empty());
    EXPECT_EQ(SaveHoliday("1/1", "New Year"), HolidayField::Saved);
    EXPECT_EQ(folder.get("Holidays/2031Holidays.dat"), "01/01/31:New Year\r\n");
    EXPECT_EQ(HolidayDateShown(0), "Jan 01, 2031") << "the century is the list's";
    EXPECT_TRUE(StartHolidayList("2011") && HolidayList.lines.size() == 1);
    for (const char* typed : {"", "20x1", "99", "10000"}) {
        dialogs.expect("four digits");
        EXPECT_FALSE(StartHolidayList(typed));
    }
    EXPECT_EQ(HolidayList.year, "2011");
}

TEST_F(HolidayManager, AFailedSaveKeepsTheListForAnotherTry) {
    open("07/04/11:A\r\n");
    std::filesystem::rename(folder.path() / "Holidays", folder.path() / "away");
    folder.put("Holidays", "a file in the folder's place");
    dialogs.expect("SaveHolidayFile");
    EXPECT_EQ(SaveHoliday("12/25", "Christmas"), HolidayField::Abandoned);
    EXPECT_EQ(HolidayList.lines.size(), 2U);
    EXPECT_EQ(HolidayList.clicked, 1) << "the new entry is the one that is shown";
    std::filesystem::remove(folder.path() / "Holidays");
    CalendarView = 12;
    Calendar.firstShown = MakeDate(2011, 1, 1);
    SaveHolidaysAndRedraw();
    EXPECT_TRUE(HolidayFlag[CellOf(MakeDate(2011, 12, 25))]);  // the view's drawing has read it
    EXPECT_EQ(file(), "07/04/11:A\r\n12/25/11:Christmas\r\n");
}

TEST_F(HolidayManager, KeepsEveryLineOfATruncatedFile) {
    ForEachCut("07/04/11:A\r\n12/25/11:Christmas\r\n", [](const std::string& cut, const TemporaryFolder& fresh) {
        if (cut.empty()) return;  // an empty list leaves no file
        fresh.put("Holidays/2011Holidays.dat", cut);
        SelectHolidayYear("2011");
        EXPECT_TRUE(SaveHolidayFile());
        EXPECT_TRUE(fresh.get("Holidays/2011Holidays.dat").starts_with(cut));
    });
}
}  // namespace
