// The holiday tables and their painting.
#include "reminders/modHolidays.h"

#include "calendar/modPaint.h"
#include "forms/recorder.h"
#include "marks/modCategories.h"
#include "tests/support/planner.h"

namespace {
struct Holidays : PlannerTest {
    Holidays() { Calendar.yearOnDisplay = 2011; }
    Recorder month_;
};

TEST_F(Holidays, LandOnTheCellsOfTheirOwnYear) {
    folder.put("holidays/2011holidays.DAT",
               "07/04/11:Independence: fireworks\r\n07/04/11*Second\r\n12/25/10:Other year\r\n02/29/11:None\r\nx\r\n"
               "12/25/11:Christmas");
    AssignThisYearsHolidays();
    EXPECT_EQ(HolidayCount, 6);
    EXPECT_EQ(HolidayText[1], "Second");
    EXPECT_EQ(HolidayDate[4], "x");
    EXPECT_EQ(HolidayCell, (std::vector<std::string>{"060101", "060101", "", "", "", "110004"}));
    EXPECT_EQ(HolidayOfCell(ThisYear, {6, 1, 1}), "Independence: fireworks");
    EXPECT_EQ(HolidayOfCell(ThisYear, {6, 2, 1}), std::nullopt);
    EXPECT_EQ(HolidayOfCell(ThisYear, {}), std::nullopt);
}

TEST_F(Holidays, OfOneYearNeverShowInAnother) {
    folder.put("Holidays/2011Holidays.dat", "07/04/11:A\r\n");
    folder.put("Holidays/2012Holidays.dat", "07/04/12:B\r\n01/01/12:C\r\n");
    AssignThisYearsHolidays();
    AssignNextYearsHolidays();
    EXPECT_EQ(HolidayOfCell(NextYear, CellOf(MakeDate(2012, 7, 4))), "B");
    Calendar.yearOnDisplay = 2012;
    EXPECT_EQ(HolidayOfCell(ThisYear, CellOf(MakeDate(2011, 7, 4))), std::nullopt);
    AssignThisYearsHolidays();
    EXPECT_EQ(HolidayCount, 2);
    EXPECT_FALSE(HolidayFlag[CellOf(MakeDate(2011, 7, 4))]);
}

TEST_F(Holidays, ArePaintedInTheirCategorysColour) {
    folder.put("Holidays/2011Holidays.dat", "07/04/11:A\r\n08/01/11:Not on display\r\n");
    AssignThisYearsHolidays();
    MarkerColor[HolidayCategory] = 0x0000FF;
    ShownMonths = {{&month_, 2011, 6, ThisYear}};
    const auto painted = [&](DayStyle style, bool hidden) {
        month_.clear();
        Paint.style = style;
        MarkerHidden[HolidayCategory] = hidden;
        DisplayThisYearsHolidays();
        return month_.calls();
    };
    const auto box = painted(DayStyle::Box, false);
    ASSERT_EQ(box.size(), 2U);
    EXPECT_EQ(box[0], "fill 1.1 1.85 1.9 2.65 0000FF");
    EXPECT_NE(box[1].find("'4'"), std::string::npos);
    EXPECT_EQ(painted(DayStyle::Box, true)[0], "fill 1.1 1.85 1.9 2.65 FFFFFF");
    EXPECT_NE(painted(DayStyle::Number, true).back().find("bold 000000"), std::string::npos);
    std::filesystem::remove(HolidayPath(2011));
    EXPECT_TRUE(painted(DayStyle::Box, false).empty()) << "without a file nothing is painted";
}

TEST_F(Holidays, AnUnreadableFileIsReportedAndLeavesNone) {
    std::filesystem::create_directories(folder.path() / "Holidays");
    std::filesystem::create_symlink("2011Holidays.dat", folder.path() / "Holidays/2011Holidays.dat");  // to itself
    dialogs.expect("AssignThisYearsHolidays");
    AssignThisYearsHolidays();
    EXPECT_EQ(HolidayCount, 0);
}
}  // namespace
