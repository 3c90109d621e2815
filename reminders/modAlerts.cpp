// The alert store.
#include "reminders/modAlerts.h"

#include <algorithm>

#include "base/clock.h"
#include "base/listEntries.h"
#include "base/state.h"
#include "base/text.h"
#include "reminders/modReminderFile.h"
#include "shell/modErrors.h"

AlertState AlertTables;
std::function<void()> ShowAlertIndicator;
std::function<void()> ShowPendingAlerts;

namespace {
const ClearedAtStart ClearAlerts([] { AlertTables = {}; });

constexpr const char* AlertFile = "Alerts.dat";

void ShowIndicator() {
    if (ShowAlertIndicator) ShowAlertIndicator();
}

void SetIndicator() {
    const int count = PendingAlertCount;
    if (count == 0)
        AlertIndicator = {false, "No Pending Alerts", "Left Click to view all Alerts.", "No Alerts Exist"};
    else
        AlertIndicator = {true, count == 1 ? "1 Pending Alert" : std::to_string(count) + " Pending Alerts",
                          "Left Click to View, Right Click to Ignore.", "Alerts Exist"};
    ShowIndicator();
}

bool AddAlert(std::string_view line, Date today) {
    AlertRec alert;
    const bool good = ParseAlertLine(line, alert);
    AlertLine.emplace_back(line);
    AlertDate.push_back(alert.date);
    AlertPeriod.push_back(alert.period);
    AlertMessage.push_back(std::move(alert.message));
    std::string& pending = PendingAlertLine.emplace_back();
    ++AlertCount;
    if (!good) return false;
    if (today <= alert.date && alert.date <= today + alert.period) {
        pending = line;
        ++PendingAlertCount;
    }
    return true;
}
}  // namespace

bool ParseAlertLine(std::string_view line, AlertRec& alert) {
    alert = {};
    alert.message = DecodedLineBreaks(Middle(line, 12));
    try {
        const Date date{static_cast<int>(IntegerValue(Middle(line, 1, 5)))};
        alert.period = SmallIntegerValue(Middle(line, 7, 4));
        alert.date = date;
    } catch (const Error&) {
        alert.message = line;
        return false;
    }
    return true;
}

std::string AlertLineOf(const AlertRec& alert) {
    return Padded(alert.date.number, 5) + ":" + Padded(alert.period, 4) + ":" + EncodedLineBreaks(alert.message);
}

std::string OneLine(std::string_view message) {
    std::string line = Replaced(message, CrLf, " ");
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return line;
}

void ReadAlerts() {
    AlertLine.clear();
    AlertDate.clear();
    AlertPeriod.clear();
    AlertMessage.clear();
    PendingAlertLine.clear();
    AlertCount = PendingAlertCount = 0;
    Reporting("ReadAlerts", [today = Today()] {
        ReadReminderLines(AlertFile, [&](std::string_view line) { return AddAlert(line, today); });
    });
    SetIndicator();
}

bool SaveAlerts(bool keepPrevious) {
    return Reporting("SaveAlerts", [&] {
        SaveReminderLines(AlertFile, AlertMasterList, {keepPrevious, "Alert List Updated."});
        if (!AlertMasterList.empty()) AddingNewAlert = false;
    });
}

void FillPendingAlertList() {
    PendingAlertEntries.clear();
    for (std::size_t i = 0; i < PendingAlertLine.size(); ++i)
        if (!PendingAlertLine[i].empty())
            PendingAlertEntries.push_back(RecordEntry(OneLine(AlertMessage[i]), static_cast<int>(i)));
    std::stable_sort(PendingAlertEntries.begin(), PendingAlertEntries.end(), InListOrder());
    if (ShowPendingAlerts) ShowPendingAlerts();
}

void IgnorePendingAlerts() {
    AlertIndicator.pending = false;
    AlertIndicator.caption = "Alerts Ignored";
    ShowIndicator();
}

std::string PendingAlertDate(std::string_view entry) {
    const auto index = RecordIndex(entry);
    if (!index || *index < 0 || *index >= AlertCount) return {};
    return "Alert Date = " + FormatDate(AlertDate[static_cast<std::size_t>(*index)], "mm/dd/yy");
}
