// The alert manager's lists and edits. Today is November 22, 2026: day 46348.
#include "reminders/modAlertManager.h"

#include "reminders/modAlerts.h"
#include "tests/support/planner.h"

namespace {
constexpr const char* Three = "46340:0003:Expired\r\n46348:0000:Today\r\n46400:0100:Later\r\n";

struct AlertManager : PlannerTest {
    AlertManager() { SelectDate(MakeDate(2026, 11, 22)); }
    void open(std::string_view bytes) {
        folder.put("Alerts.dat", bytes);
        ReadAlerts();
        OpenAlertList();
    }
    std::string file() const { return folder.get("Alerts.dat"); }
    AlertField save(const char* date, const char* period, const char* message, std::optional<Answer> overwrite = {}) {
        if (overwrite) dialogs.expect("Do you want to over-write this alert?", *overwrite);
        if (overwrite != Answer::Cancel) dialogs.expect("Alert List Updated.");
        return SaveAlert({date, period, message});
    }
};

TEST_F(AlertManager, OpensOnTheFirstAlertOrOnANewOne) {
    open(Three);
    EXPECT_EQ(AlertList.heading, "Editing Existing Alert");
    EXPECT_EQ(AlertList.caption, "Active Alert List: 3 Alerts");
    EXPECT_EQ(AlertList.edit.date + AlertList.edit.period + AlertList.edit.message, "11/14/263Expired");
    CloseAlertList();
    AlertPresetDate = MakeDate(2035, 12, 24);
    AddingNewAlert = true;
    OpenAlertList();
    EXPECT_EQ(AlertList.heading, "Adding New Alert");
    EXPECT_EQ(AlertList.edit.date, "12/24/35");
    EXPECT_EQ(AlertDateTyped("12/24/35"), MakeDate(2035, 12, 24)) << "the shown date keeps its century";
    CloseAlertList();
    EXPECT_FALSE(AddingNewAlert);
    open("");
    EXPECT_EQ(AlertList.heading, "Adding New Alert");
    EXPECT_EQ(AlertList.caption, "Active Alert List (Empty)");
    EXPECT_EQ(AlertList.edit.date + " " + AlertList.edit.period, "11/22/26 7");
}

TEST_F(AlertManager, SavesOverTheOldOneOrBesideIt) {
    open(Three);
    EXPECT_EQ(save("12/1/2026", "7", "X", Answer::Cancel), AlertField::Abandoned);
    EXPECT_EQ(save("12/1/2026", "7", "X", Answer::Yes), AlertField::Saved);
    EXPECT_EQ(file(), "46348:0000:Today\r\n46357:0007:X\r\n46400:0100:Later\r\n");
    SelectAlert(2);
    EXPECT_EQ(save("12/1/2026", "10", "one\r\ntwo", Answer::No), AlertField::Saved);
    EXPECT_EQ(file(), "46348:0000:Today\r\n46357:0007:X\r\n46357:0010:one\xD5\xD2two\r\n46400:0100:Later\r\n");
    EXPECT_FALSE(AddingNewAlert);
}

TEST_F(AlertManager, ActsOnTheRightAlertInThePendingView) {
    open("46400:0100:Later\r\n46348:0000:Today\r\n46340:0003:Expired\r\n");  // not in order
    ViewAlerts(true, {});
    EXPECT_EQ(AlertList.messages, (std::vector<std::string>{"Today", "Later"}));
    EXPECT_EQ(AlertList.caption, "Active Alert List: 2 Alerts");
    SelectAlert(1);
    EXPECT_EQ(save("1/13/2027", "100", "Changed", Answer::Yes), AlertField::Saved);
    SelectAlert(0);
    dialogs.expect("Alert List Updated.");
    DeleteAlert();
    EXPECT_EQ(file(), "46340:0003:Expired\r\n46400:0100:Changed\r\n");
}

TEST_F(AlertManager, RefusesWhatCannotBeKept) {
    open("");
    using Row = std::tuple<const char*, const char*, const char*, AlertField>;
    for (const auto& [date, period, message, field] :
         {Row{"1/1/2027", "", "Please edit the value of the Alert Period", AlertField::Period},
          Row{"1/1/2027", "1x", "Please edit the value of the Alert Period", AlertField::Period},
          Row{"1/1/2027", "12345", "An alert cannot be set greater than 9999 days.", AlertField::Period},
          Row{"soon", "1", "Date not recognized as entered.", AlertField::Date},
          Row{"5/17/1927", "1", "May 18, 1927", AlertField::Date},
          Row{"10/14/2173", "1", "October 13, 2173", AlertField::Date}}) {
        dialogs.expect(message);
        EXPECT_EQ(SaveAlert({date, period, "X"}), field) << date;
    }
    dialogs.expect("line breaks", Answer::No);
    EXPECT_EQ(SaveAlert({"1/1/2027", "1", "\xD2"}), AlertField::Message);
    for (const char* edge : {"5/18/1927", "10/13/2173"}) {
        NewAlert();
        EXPECT_EQ(save(edge, "9999", "X"), AlertField::Saved);
    }
    EXPECT_EQ(file(), "10000:9999:X\r\n99999:9999:X\r\n");
}

TEST_F(AlertManager, DeletesTheFirstBeforeAClickAndExpiredOnesWithACopy) {
    open(Three);
    NewAlert();
    dialogs.expect("Alert List Updated.");
    DeleteAlert();
    EXPECT_EQ(file(), "46348:0000:Today\r\n46400:0100:Later\r\n");
    EXPECT_EQ(folder.backups(), "");
    const std::string withBad = std::string(Three) + "46000:zz:Bad line stays\r\n";
    dialogs.expect("line 4");
    open(withBad);
    dialogs.expect("Backup");
    dialogs.expect("line 1");
    DeleteExpiredAlerts();
    EXPECT_EQ(file(), "46000:zz:Bad line stays\r\n46348:0000:Today\r\n46400:0100:Later\r\n");
    EXPECT_EQ(folder.backups(), withBad);
}

TEST_F(AlertManager, FindsTheNextMessageAroundTheEnd) {
    open("46340:0003:Water\r\n46348:0000:Today\r\n46400:0100:buy WATER\r\n");
    for (const int found : {2, 0}) {
        dialogs.expectInput("Find", "water");
        EXPECT_EQ(FindAlert(), found);
        SelectAlert(2);
    }
    EXPECT_EQ(dialogs.shown().back().preset, "water");
    dialogs.expectInput("Find", "fire");
    dialogs.expect("\"fire\"");
    EXPECT_EQ(FindAlert(), std::nullopt);
    dialogs.expectInput("Find", std::nullopt);
    EXPECT_EQ(FindAlert(), std::nullopt);
}

TEST_F(AlertManager, AFailedSaveKeepsWhatWasTypedAndItsPlace) {
    open(Three);
    SelectAlert(1);
    SetDisk({.write = [](const Path&, std::string_view) { throw Error(DiskFull); }});
    // Meanwhile somebody else has put an alert in front of it, and then has taken it away.
    for (const auto& [file, entry] : {std::pair{std::string("46000:0000:New\r\n") + Three, 2},
                                      std::pair{std::string("46340:0003:Expired\r\n"), -1}}) {
        folder.put("Alerts.dat", file);
        dialogs.expect("over-write", Answer::Yes);
        dialogs.expect("SaveAlerts");
        EXPECT_EQ(SaveAlert({"12/1/2026", "7", "typed"}), AlertField::Abandoned);
        EXPECT_EQ(AlertList.edit.message, "typed");
        EXPECT_EQ(AlertList.selected, entry);
        EXPECT_EQ(AddingNewAlert, entry < 0);
    }
    SetDisk({});
}
}  // namespace
