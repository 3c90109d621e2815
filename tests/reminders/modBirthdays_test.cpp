// The birthday store: reading, what is pending, cells, saving.
#include "reminders/modBirthdays.h"

#include "calendar/modPaint.h"
#include "forms/recorder.h"
#include "marks/modCategories.h"
#include "tests/support/planner.h"

namespace {
struct Birthdays : PlannerTest {
    Birthdays() { Calendar.yearOnDisplay = 2026; }
    void read(std::string_view bytes) {
        folder.put("Birthdays.dat", bytes);
        ReadBirthdays();
    }
};

TEST_F(Birthdays, AreReadByPosition) {
    read("07/04:05:Grandpa:1931\r\n\r\n01/02:-1:A: B:****\n12/31:00:No separator after the name");
    ASSERT_EQ(BirthdayCount, 3);
    EXPECT_EQ(
        Birthday[0].MonthDay + "|" + Birthday[0].NotifyDays + "|" + Birthday[0].Name + "|" + Birthday[0].BirthYear,
        "07/04|5|Grandpa|1931");
    EXPECT_EQ(Birthday[1].NotifyDays + Birthday[1].Name + Birthday[2].Name, "-1A");
    EXPECT_EQ(BirthdayLine[2], "12/31:00:No separator after the name");
}

TEST_F(Birthdays, ArePendingWithinTheirPeriod) {
    using Row = std::tuple<const char*, const char*, const char*, bool>;
    for (const auto& [today, monthDay, period, pending] :
         {Row{"11/22/2026", "11/22", "00", true}, Row{"11/22/2026", "11/23", "00", false},
          Row{"11/22/2026", "11/21", "10", false}, Row{"11/22/2026", "12/02", "10", true},
          Row{"11/22/2026", "12/03", "10", false}, Row{"11/22/2026", "11/22", "-1", false},
          Row{"12/28/2026", "01/03", "10", true}, Row{"12/28/2026", "12/30", "10", true},
          Row{"12/28/2026", "01/08", "10", false}, Row{"12/31/2026", "12/31", "01", true},
          Row{"02/28/2026", "02/29", "00", true}, Row{"02/28/2028", "02/29", "00", false},
          Row{"02/29/2028", "02/29", "00", true}, Row{"03/01/2026", "02/29", "00", false},
          Row{"12/28/2026", "02/29", "63", true}, Row{"11/22/2026", "11/22", "-5", false}}) {
        const YearMonthDay day = PartsOf(DateOfText(today));
        FixClock(day.year, day.month, day.day, 23, 59, 59);
        read(std::string(monthDay) + ":" + period + ":Ann:1990\r\n");
        EXPECT_EQ(PendingBirthdayCount == 1, pending) << today << " " << monthDay << " " << period;
        EXPECT_EQ(BirthdayIndicator.pending, pending);
    }
}

TEST_F(Birthdays, OfABadLineStayInTheListAndAreReported) {
    dialogs.expect("\"Birthdays.dat\", line 2, 3, 5");
    read(
        "11/22:00:Ann:1990\r\n11/22:zz:Bad period:1990\r\n11/2\r\n11/23:01:Zoe:****\r\n13/45:00:No day:1990\r\n"
        "13/45:-1:Never asked:1990\r\n");
    dialogs.verify();
    EXPECT_EQ(BirthdayCount, 6);
    EXPECT_EQ(PendingBirthdayCount, 2);
    EXPECT_EQ(BirthdayIndicator.toolTip, "2 Birthdays are Pending");
    BirthdayMasterList = BirthdayLine;
    dialogs.expect("Birthdays Updated.");
    const std::string before = folder.get("Birthdays.dat");
    EXPECT_TRUE(SaveBirthdays());
    EXPECT_EQ(folder.get("Birthdays.dat"), before);
    std::filesystem::remove(folder.path() / "Birthdays.dat");
    ReadBirthdays();
    EXPECT_EQ(BirthdayIndicator.toolTip, "No Birthdays Pending");
}

TEST_F(Birthdays, FillThePendingListSortedWithTheirIndexes) {
    read("11/22:00:zoe:1990\r\n01/01:00:Bob:1990\r\n11/24:03:\xC9mile:****\r\n11/23:01:Eric:1980\r\n");
    FillPendingBirthdayList();
    EXPECT_EQ(PendingBirthdayEntries, (std::vector<std::string>{"\xC9mile\t\t\t\t\t\xE0\x32", "Eric\t\t\t\t\t\xE0\x33",
                                                                "zoe\t\t\t\t\t\xE0\x30"}));
    EXPECT_EQ(PendingBirthdayDate(PendingBirthdayEntries[1]), "Date = 11/23/26");
    EXPECT_EQ(PendingBirthdayDate("gone\t\t\t\t\t\xE0\x39"), "");
}

TEST_F(Birthdays, MarkTheirCellsInBothYears) {
    read("07/04:-1:Grandpa:1931\r\n02/29:-1:Leaper:2000\r\n07/04:-1:Ann:****\r\n");
    Recorder july;
    ShownMonths = {{&july, 2027, 6, NextYear}};
    Paint.style = DayStyle::Box;
    MarkerColor[BirthdayCategory] = 0x00FF00;
    MarkerHidden[BirthdayCategory] = false;
    ReadAndMarkBirthdays();
    ReadAndMarkNextYearsBirthdays();
    EXPECT_EQ(BirthdayCell, (std::vector<std::string>{"060600", "", "060600"}));
    EXPECT_EQ(NextBirthdayCell[0], "060001");
    EXPECT_EQ(BirthdayCellName(6, 6, 0), "Ann");
    EXPECT_EQ(BirthdaysOfCell(NextYear, {6, 0, 1}), (std::vector<std::string>{"Grandpa", "Ann"}));
    EXPECT_EQ(july.containing("fill").size(), 1U);
    Calendar.yearOnDisplay = 2028;
    EXPECT_TRUE(BirthdaysOfCell(ThisYear, {6, 6, 0}).empty()) << "the cells are another year's";
    ReadAndMarkBirthdays();
    EXPECT_EQ(BirthdayCell[1], CellText(CellOf(MakeDate(2028, 2, 29))));
    read("07/04:-1:Ann:****\r\n");
    EXPECT_EQ(BirthdayCell.size(), 1U) << "the cells follow a list that was read again";
}

TEST_F(Birthdays, AreSavedInListOrderAndQuietlyTheFirstTime) {
    BirthdayMasterList = {"01/02:00:A:****", "", "07/04:05:B:1931"};
    QuietBirthdaySave = true;
    EXPECT_TRUE(SaveBirthdays());
    EXPECT_EQ(folder.get("Birthdays.dat"), "01/02:00:A:****\r\n07/04:05:B:1931\r\n");
    dialogs.expect("Birthdays Updated.");
    EXPECT_TRUE(SaveBirthdays());
    BirthdayMasterList.clear();
    EXPECT_TRUE(SaveBirthdays(true));
    EXPECT_FALSE(folder.has("Birthdays.dat"));
    EXPECT_EQ(folder.backups(), "01/02:00:A:****\r\n07/04:05:B:1931\r\n");
}

TEST_F(Birthdays, TruncatedAnywhereAreReadWithoutLoss) {
    ForEachCut("02/29:10:Lea Pyear:2000\r\n07/04:05:Grandpa:1931\r\n", [&](const std::string& cut, const auto& fresh) {
        fresh.put("Birthdays.dat", cut);
        BirthdayRec record;
        if (!LastLine(cut).empty() && !ParseBirthday(LastLine(cut), record)) dialogs.expect("ReadBirthdays");
        ReadBirthdays();
        dialogs.verify();
        std::string kept;
        for (const auto& line : BirthdayLine) kept += line + "\r\n";
        EXPECT_TRUE(kept.starts_with(cut));
    });
}
}  // namespace
