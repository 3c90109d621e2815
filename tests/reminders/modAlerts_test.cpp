// The alert store: reading, what is pending, the indicator, saving.
#include "reminders/modAlerts.h"
#include "tests/support/planner.h"

namespace {
struct Alerts : PlannerTest {
    void read(std::string_view bytes) {
        folder.put("Alerts.dat", bytes);
        ReadAlerts();
    }
};

TEST_F(Alerts, ArePendingFromTheirPeriodUpToTheirDate) {
    const int today = MakeDate(2026, 11, 22).number;
    using Row = std::tuple<int, const char*, bool>;
    for (const auto& [days, period, pending] :
         {Row{0, "0000", true}, Row{1, "0000", false}, Row{-1, "9999", false}, Row{7, "0007", true},
          Row{8, "0007", false}, Row{9999, "9999", true}, Row{0, "-001", false}}) {
        read(std::to_string(today + days) + ":" + period + ":Call: Bob\r\n");
        EXPECT_EQ(PendingAlertCount == 1, pending) << days << " " << period;
        EXPECT_EQ(AlertMessage[0], "Call: Bob");
        EXPECT_EQ(AlertDate[0].number, today + days);
    }
}

TEST_F(Alerts, TheIndicatorFollowsTheTablesAndCanBeIgnored) {
    int shown = 0;
    ShowAlertIndicator = [&] { ++shown; };
    read("46348:0000:A\r\n46348:0001:B\r\n");
    EXPECT_EQ(AlertIndicator.caption, "2 Pending Alerts");
    IgnorePendingAlerts();
    EXPECT_EQ(AlertIndicator.caption, "Alerts Ignored");
    EXPECT_FALSE(AlertIndicator.pending);
    read("46348:0000:A\r\n");
    EXPECT_EQ(AlertIndicator.caption, "1 Pending Alert");
    std::filesystem::remove(folder.path() / "Alerts.dat");
    ReadAlerts();
    EXPECT_EQ(AlertIndicator.caption, "No Pending Alerts");
    EXPECT_EQ(AlertIndicator.imageToolTip, "No Alerts Exist");
    EXPECT_EQ(shown, 4);
    ShowAlertIndicator = {};
}

TEST_F(Alerts, KeepTheLineBreaksOfAMessageInOneLine) {
    const std::string line = AlertLineOf({Date{39814}, 7, "one\r\ntwo: three"});
    EXPECT_EQ(line, "39814:0007:one\xD5\xD2two: three");
    read(line);
    EXPECT_EQ(AlertMessage[0], "one\r\ntwo: three");
}

TEST_F(Alerts, FillThePendingListSortedByMessage) {
    read("46348:0000:water\r\n46349:0000:Not yet\r\n46348:0000:Air\xD5\xD2tight\r\n");
    FillPendingAlertList();
    EXPECT_EQ(PendingAlertEntries,
              (std::vector<std::string>{"Air tight\t\t\t\t\t\xE0\x32", "water\t\t\t\t\t\xE0\x30"}));
    EXPECT_EQ(PendingAlertDate(PendingAlertEntries[0]), "Alert Date = 11/22/26");
    EXPECT_EQ(PendingAlertDate("gone\t\t\t\t\t\xE0\x39"), "");
}

TEST_F(Alerts, OfBadLinesStayInTheListAndAreReported) {
    const std::string file = "46348:0000:A\r\nnonsense\r\n\r\n46348:00x0:B\r\n46348\r\n46348:0000:C";
    dialogs.expect("\"Alerts.dat\", line 2, 4, 5");
    read(file);
    EXPECT_EQ(AlertCount, 5);
    EXPECT_EQ(PendingAlertCount, 2);
    AlertMasterList = AlertLine;
    dialogs.expect("Alert List Updated.");
    EXPECT_TRUE(SaveAlerts());
    EXPECT_EQ(folder.get("Alerts.dat"), "46348:0000:A\r\nnonsense\r\n46348:00x0:B\r\n46348\r\n46348:0000:C\r\n");
}

TEST_F(Alerts, AnEmptyListLeavesNoFileAndAChangedFileIsKept) {
    read("46348:0000:A\r\n");
    EXPECT_TRUE(SaveAlerts());
    EXPECT_FALSE(folder.has("Alerts.dat"));
    EXPECT_EQ(folder.backups(), "");
    folder.put("Alerts.dat", "46348:0000:Typed elsewhere\r\n");
    AlertMasterList = {"46348:0000:A"};
    dialogs.expect("\"Backup\"");
    EXPECT_TRUE(SaveAlerts());
    EXPECT_EQ(folder.backups(), "46348:0000:Typed elsewhere\r\n");
}

TEST_F(Alerts, TruncatedAnywhereOrVeryManyAreReadWithoutLoss) {
    std::string many;
    for (int i = 0; i < 20000; ++i) many += i == 9999 ? "bad\r\n" : "46348:0000:Number " + std::to_string(i) + "\r\n";
    dialogs.expect("line 10000.");
    read(many);
    EXPECT_EQ(AlertCount, 20000);
    EXPECT_EQ(AlertIndicator.caption, "19999 Pending Alerts");
    ForEachCut("46348:0000:One\r\n46349:0010:Two: parts\r\n",
               [&](const std::string& cut, const TemporaryFolder& fresh) {
                   AlertRec alert;
                   if (!LastLine(cut).empty() && !ParseAlertLine(LastLine(cut), alert)) dialogs.expect("ReadAlerts");
                   fresh.put("Alerts.dat", cut);
                   ReadAlerts();
                   dialogs.verify();
                   std::string kept;
                   for (const auto& line : AlertLine) kept += line + "\r\n";
                   EXPECT_TRUE(kept.starts_with(cut));
               });
}
}  // namespace
