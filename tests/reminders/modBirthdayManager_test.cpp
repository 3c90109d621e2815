// The birthday manager's lists, ages, edits and printing. Today is November 22, 2026.
#include "reminders/modBirthdayManager.h"

#include "tests/support/planner.h"
#include "tests/support/printer.h"

namespace {
struct BirthdayManager : PlannerTest {
    void open(std::string_view bytes) {
        folder.put("Birthdays.dat", bytes);
        ReadBirthdays();
        OpenBirthdayList();
        QuietBirthdaySave = false;
    }
    std::string file() const { return folder.get("Birthdays.dat"); }
};

TEST_F(BirthdayManager, PutsTheSurnameFirst) {
    using Row = std::pair<const char*, const char*>;
    for (const auto& [name, key] :
         {Row{"First Last Jr.", "Last, First Jr."}, Row{"First Last, Jr.", "Last, First, Jr."}, Row{"Anna", "Anna"},
          Row{" Mary Ann  Smith ", "Smith, Mary Ann"}, Row{"Ian Ivory", "Ivory, Ian"},
          Row{"Karl Keller III", "Keller, Karl III"}, Row{"Bo Srbic SR", "Srbic, Bo SR"},
          Row{"Bo Lee Jr. II", "Lee, Bo Jr. II"}, Row{"Madonna Jr", "Madonna Jr"}, Row{"", ""}})
        EXPECT_EQ(BirthdayNameKey(name), key);
}

TEST_F(BirthdayManager, CountsTheBirthdaysPassed) {
    using Row = std::tuple<const char*, const char*, const char*, const char*>;
    for (const auto& [today, monthDay, born, age] :
         {Row{"2/28/2009", "02/28", "1931", "78"}, Row{"2/27/2009", "02/28", "1931", "77"},
          Row{"11/22/2026", "11/22", "1904", "122"}, Row{"2/28/2027", "02/29", "2000", "27"},
          Row{"2/28/2028", "02/29", "2000", "27"}, Row{"11/22/2026", "12/01", "2026", "0"},
          Row{"11/22/2026", "11/22", "****", "NA"}, Row{"11/22/2026", "11/22", "19a1", "NA"},
          Row{"11/22/2026", "13/45", "1990", "NA"}}) {
        const YearMonthDay day = PartsOf(DateOfText(today));
        FixClock(day.year, day.month, day.day);
        EXPECT_EQ(CalculateAge({monthDay, "0", "Ann", born}), std::string("Age = ") + age);
    }
}

TEST_F(BirthdayManager, ListsByMonthAndByName) {
    open("12/01:-1:Zoe Adler:****\r\n01/02:00:Ben Z\xFCrn:1990\r\n11/23:03:Ana Brown:1980\r\n");
    EXPECT_EQ(BirthdayListTitle(), "Birthday Management - Viewing Pending");
    EXPECT_EQ(BirthdayList.byMonth, std::vector<std::string>{"11/23/1980\tAna Brown\t\t\t\xE0\x32"});
    EXPECT_EQ(PendingBirthdayEntries.size(), 1U) << "the main window's list follows the reading";
    ViewBirthdays(false);
    EXPECT_EQ(BirthdayListTitle(), "Birthday Management - Viewing All");
    EXPECT_EQ(BirthdayList.byMonth[0], "01/02/1990\tBen Z\xFCrn\t\t\t\xE0\x31");
    EXPECT_EQ(BirthdayList.byName,
              (std::vector<std::string>{"Adler, Zoe - 12/01\t\t\t\xE0\x30", "Brown, Ana - 11/23/1980\t\t\t\xE0\x32",
                                        "Z\xFCrn, Ben - 01/02/1990\t\t\t\xE0\x31"}));
}

TEST_F(BirthdayManager, SavesNewAndEditedOnes) {
    open("07/04:07:Grandpa:1931\r\n");
    for (const char* name : {" Ann ", "Ann"}) {  // twice the same adds it once
        dialogs.expect("Birthdays Updated.");
        EXPECT_EQ(SaveBirthday({name, "1/2/1990", false, 1}), BirthdayField::Saved);
    }
    EXPECT_EQ(file(), "01/02:00:Ann:****\r\n07/04:07:Grandpa:1931\r\n");
    BirthdayEdit shown = SelectBirthday(1);
    EXPECT_EQ(shown.date + shown.age, "07/04/1931Age = 95");
    EXPECT_EQ(std::exchange(shown.period, 0), 5);
    for (const char* name : {"Granddad", "Grandpa Joe"}) {  // edited again without another click
        shown.name = name;
        dialogs.expect("Birthdays Updated.");
        EXPECT_EQ(SaveBirthday(shown), BirthdayField::Saved);
    }
    EXPECT_EQ(file(), "01/02:00:Ann:****\r\n07/04:-1:Grandpa Joe:1931\r\n");
    EXPECT_EQ(folder.backups(), "");
}

TEST_F(BirthdayManager, KeepsWhatALineHoldsBesidesItsFields) {
    open("07/04:09:Ann:work@x:1931\r\n");
    BirthdayEdit shown = SelectBirthday(0);
    EXPECT_EQ(shown.period, std::nullopt);
    dialogs.expect("Backup");
    EXPECT_EQ(SaveBirthday(shown), BirthdayField::Saved);
    EXPECT_EQ(file(), "07/04:09:Ann:1931\r\n") << "a period without a button stays";
    EXPECT_EQ(folder.backups(), "07/04:09:Ann:work@x:1931\r\n");
}

TEST_F(BirthdayManager, RefusesWhatIsNoBirthday) {
    open("07/04:07:Grandpa:1931\r\n");
    using Row = std::tuple<const char*, const char*, const char*, BirthdayField>;
    for (const auto& [name, date, message, field] :
         {Row{"  ", "1/2/1990", "Please enter a name in the box provided.", BirthdayField::Name},
          Row{"Ann: B", "1/2/1990", "cannot hold \":\"", BirthdayField::Name},
          Row{"Ann", "2/30/1990", "Please enter a date.", BirthdayField::Date},
          Row{"Ann", "2/29/1960", "February 29 cannot be entered", BirthdayField::Date}}) {
        dialogs.expect(message);
        EXPECT_EQ(SaveBirthday({name, date}), field) << message;
    }
    EXPECT_EQ(file(), "07/04:07:Grandpa:1931\r\n");
}

TEST_F(BirthdayManager, DeletesSeveralAfterAQuestionAndKeepsTheFile) {
    const std::string before = "01/02:00:Ann:****\r\n01/02:00:Ann:****\r\n07/04:07:Grandpa:1931\r\n";
    open(before);
    dialogs.expect("Nothing selected to delete.");
    EXPECT_FALSE(DeleteBirthdays({}));
    dialogs.expect("Preparing to Delete Multiple Items", Answer::No);
    EXPECT_FALSE(DeleteBirthdays({0, 2}));
    dialogs.expect("Are you sure you want to delete these multiple items?", Answer::Yes);
    dialogs.expect("Backup");
    EXPECT_TRUE(DeleteBirthdays({0, 2}));
    EXPECT_EQ(file(), "01/02:00:Ann:****\r\n");
    EXPECT_EQ(folder.backups(), before);
    EXPECT_TRUE(DeleteBirthdays({0}));
    EXPECT_EQ(file(), "(none)");
    dialogs.expect("Birthday List Saved. Changes will be reflected in your next calendar view.");
    CloseBirthdayList();
    CloseBirthdayList();
}

TEST_F(BirthdayManager, AFailedWriteLeavesTheEditedBirthdayTheEditedOne) {
    const std::string ann = "01/02:00:Ann:****\r\n";
    const std::string grandpa = "07/04:07:Grandpa:1931\r\n";
    open(ann + grandpa);
    BirthdayEdit shown = SelectBirthday(1);
    shown.name = "Granddad";
    SetDisk({.write = [](const Path&, std::string_view) { throw Error(DiskFull); }});
    for (const bool deleting : {false, true}) {
        // Meanwhile somebody else has taken the first away, or put it back.
        folder.put("Birthdays.dat", deleting ? ann + grandpa : grandpa);
        dialogs.expect("SaveBirthdays");
        if (deleting)
            EXPECT_FALSE(DeleteBirthdays({0}));
        else
            EXPECT_EQ(SaveBirthday(shown), BirthdayField::Abandoned);
        EXPECT_EQ(BirthdayList.edited, deleting ? 1 : 0);
    }
    SetDisk({});
}

TEST_F(BirthdayManager, KnowsWhetherADateSaysItsYear) {
    for (const char* with : {"7/4/31", "7-4-1931", "Jul 4, 1931", "1931-07-04", "4 July 1931"})
        EXPECT_TRUE(NamesYear(with));
    for (const char* without : {"7/4", "Jul 4", "07/04", ""}) EXPECT_FALSE(NamesYear(without));
}

TEST_F(BirthdayManager, Prints42EntriesAPage) {
    RecordedPrinter printer;
    const std::vector<std::string> entries(43, "07/04/1931\tGrandpa\t\t\t\xE0\x30");
    dialogs.expect("Printer not found.");
    PrintBirthdayList(entries);
    CheckPrinter();
    dialogs.expect("Nothing from the list has been selected to print.");
    PrintSelectedBirthdays({});
    dialogs.expect("Click OK to begin printing these 2 pages. Click Cancel to exit.", Answer::Cancel);
    PrintBirthdayList(entries);
    EXPECT_EQ(printer.count(""), 0U);
    dialogs.expect("Beginning Print Process");
    PrintBirthdayList(entries);
    EXPECT_TRUE(printer.count("Grandpa") == 43 && printer.count("page") == 1);
    EXPECT_EQ(printer.page->calls()[0], "text 1440 1440 '07/04/1931' Times New Roman 11 000000");
    dialogs.expect("these 1 pages");
    PrintSelectedBirthdays(std::vector<std::string>(42, "Brown, Ana - 11/23\t\t\t\xE0\x32"));
    EXPECT_TRUE(printer.count("page") == 0 && printer.count("'Brown, Ana - 11/23'") == 42);
    printer.page.reset();
    PrintBirthdayRecord({"", "07/04"});
    EXPECT_EQ(printer.count(""), 0U);
    PrintBirthdayRecord({"Ann", "07/04/1931", true, 5, "Age = 95"});
    EXPECT_EQ(printer.count("Age = 95"), 1U);
}
}  // namespace
