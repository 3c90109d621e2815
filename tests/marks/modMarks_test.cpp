// Marks files read, painted and saved: what they hold is never lost, never another year's.
#include "marks/modMarks.h"

#include "reminders/modBirthdays.h"
#include "tests/support/calendar.h"

namespace {
const std::string File = "2026Marks.dat";
const std::string NextFile = "2027Marks.dat";
const std::string Full =
    "00:01:04:8388608-Team meeting\r\n01:00:02:12632256\r\n01:03:01:255-Flight - gate B:22\r\n"
    "03:02:01:33023-\xBD day off\r\n11:05:03:16711680";

struct MarksTest : CalendarTest {
    MarksTest() { begin(); }

    /// The tables of an empty planner that shows 2026 and reaches into 2027.
    static void begin() {
        Calendar.yearOnDisplay = 2026;
        SpansNextYear = true;
        SelectDate(MakeDate(2026, 2, 11));
    }
};

int MarkedCells(Year slot) {
    int count = 0;
    ForEachCell([&](Cell cell) { count += Marks[slot].flag[cell]; });
    return count;
}

}  // namespace

TEST_F(MarksTest, SurviveReadingAndSaving) {
    for (const std::string& file : {std::string("00:05:00:0--:-"), std::string("02:06:04:16777215-tab\tand \0 NUL", 31),
                                    std::string("01:06:05:255-where no date is"), Full}) {
        for (const auto& name : {File, NextFile}) folder.put(name, file);
        ReadAndDisplayThisYearsMarks();
        ReadAndDisplayNextYearsMarks();
        EXPECT_TRUE(SaveThisYearsMarks() && SaveNextYearsMarks());
        for (const auto& name : {File, NextFile, std::string("2027Marks.bak")}) EXPECT_EQ(folder.get(name), file);
    }
    for (auto& marks : Marks) marks.flag.fill(false);
    EXPECT_TRUE(SaveThisYearsMarks() && SaveNextYearsMarks());
    EXPECT_EQ(folder.get(File) + folder.get(NextFile) + folder.backups(), "(none)");
}

TEST_F(MarksTest, EachYearKeepsToItsOwnTablesAndFile) {
    folder.put(File, Full);
    ReadAndDisplayThisYearsMarks();
    Calendar.yearOnDisplay = 2027;
    EXPECT_TRUE(SaveThisYearsMarks());
    EXPECT_EQ(folder.get(File), Full) << "the tables are still those of 2026";
    EXPECT_FALSE(folder.has(NextFile));
    ReadAndDisplayThisYearsMarks();
    EXPECT_TRUE(MarkedCells(ThisYear) == 0 && MarkColor(1, 3, 1) == 0 && HoverText(1, 3, 1).empty());
    ClearDateHolders();
    dialogs.expect("SaveThisYearsMarks");
    EXPECT_FALSE(SaveThisYearsMarks()) << "tables that were emptied may not be saved";
    EXPECT_EQ(folder.get(File), Full);
}

TEST_F(MarksTest, FaultsAreReportedLinesBeforeThemStandAndNothingIsLost) {
    const std::string start = "00:01:04:255\r\n";
    const std::vector<FaultyFile> files{{start + "12:01:01:255\r\n01:00:02:255", "Number: 9", 1},
                                        {start + "01:07:01:255\r\n01:00:02:255", "Number: 9", 1},
                                        {start + "01:01:06:255", "Number: 9", 1},
                                        {start + "01:01:-1:255", "Number: 9", 1},
                                        {start + "01:xx:01:255", "Number: 13", 1},
                                        {start + "01:01", "Type mismatch (line 2 of the file \"", 1},
                                        {start + "01:01:01:-text", "Number: 13", 1},
                                        {start + "01:01:01-255", "Number: 13", 1},
                                        {start + "01:01:01:16777216", "Number: 6", 1},
                                        {start + "\r\n01:01:01:255", "Number: 13", 1},
                                        {start + std::string(40, '\0'), "Number: 13", 1},
                                        {Full + Full, "Number: 13", 4},
                                        {start + "00:01:04:128-later", "", 1},
                                        {start + " 1: 1: 1: 255", "", 2}};
    for (const Year slot : {ThisYear, NextYear}) {
        const auto read = [&] {
            begin();
            ReadAndDisplayMarks(slot);
            return MarkedCells(slot);
        };
        const auto save = [&] {
            Marks[slot].flag(7, 3, 3) = true;
            dialogs.expect("Backup");
            return SaveMarks(slot);
        };
        expectKept(slot == ThisYear ? File : NextFile, files, read, save);
    }
}

TEST_F(MarksTest, SurviveBeingCutAtEveryByte) {
    ForEachCut(Full, [&](std::string cut, const TemporaryFolder& fresh) {
        begin();
        fresh.put(File, cut);
        const std::string line = cut.substr(cut.rfind('\n') + 1);
        const bool faulty = !line.empty() && line.size() < 10;
        if (faulty) dialogs.expect("ReadAndDisplayThisYearsMarks");
        ReadAndDisplayThisYearsMarks();
        MarkFlag(11, 6, 5) = true;
        const bool copied = faulty || (line.size() > 10 && line.find('-') == line.size() - 1);
        if (copied) dialogs.expect("Backup");
        EXPECT_TRUE(SaveThisYearsMarks());
        if (cut.ends_with('\r')) cut.pop_back();
        EXPECT_TRUE(copied ? fresh.backups() == cut : fresh.get(File).starts_with(cut)) << fresh.get(File);
        dialogs.verify();
    });
}

TEST_F(MarksTest, FileThatCannotBeReadIsNotOverwritten) {
    for (const auto& name : {File, NextFile}) std::filesystem::create_directories(folder.path() / name / "in the way");
    ReadAndDisplayThisYearsMarks();
    ReadAndDisplayNextYearsMarks();
    MarkFlag(1, 1, 1) = NextMarkFlag(1, 1, 1) = true;
    dialogs.expect("SaveThisYearsMarks");
    dialogs.expect("SaveNextYearsMarks");
    EXPECT_FALSE(SaveThisYearsMarks() || SaveNextYearsMarks());
}

TEST_F(MarksTest, ArePaintedInTheirColorOrInWhatAHiddenCategoryLeavesToSee) {
    folder.put("Holidays/2026Holidays.dat", "02/11/26:H\r\n02/12/26:H\r\n");
    folder.put("Birthdays.dat", "02/12:00:Ann:****\r\n02/13:00:Bob:****\r\n");
    const std::string file = "01:03:01:255-x\r\n01:04:01:255\r\n01:05:01:255\r\n01:06:01:255";
    folder.put(File, file);
    ReadBirthdays();
    const auto colors = [&] {
        show(6, 2026, 2, 1);
        return std::vector<Color>{painted(2026, 2, 11), painted(2026, 2, 12), painted(2026, 2, 13),
                                  painted(2026, 2, 14)};
    };
    EXPECT_EQ(colors(), std::vector<Color>(4, MeetingColor));
    MarkerHidden[9] = true;
    EXPECT_EQ(colors(), (std::vector<Color>{HolidayColor, HolidayColor, BirthdayColor, Black}));
    MarkerHidden[HolidayCategory] = true;
    EXPECT_EQ(colors(), (std::vector<Color>{Black, BirthdayColor, BirthdayColor, Black}));
    EXPECT_TRUE(SaveThisYearsMarks());
    EXPECT_EQ(folder.get(File), file) << "hiding changes nothing that is saved";
}

TEST_F(MarksTest, OnlyCellsOfAnotherColorArePaintedAgainAndNoneOfAnotherYear) {
    for (const auto& name : {File, NextFile}) folder.put(name, Full);
    show(6, 2026, 2, 11);
    ReadAndDisplayNextYearsMarks();
    MarkColor(1, 3, 1) = 0x00FF00;
    ReDrawDateMarks();
    EXPECT_TRUE(SaveAndReadMarks(ThisYear));
    EXPECT_EQ(month(0).containing("fill"),
              Pieces("fill 0.1 2.85 0.9 3.65 C0C0C0|fill 3.1 1.85 3.9 2.65 0000FF|fill 3.1 1.85 3.9 2.65 00FF00"));
}
