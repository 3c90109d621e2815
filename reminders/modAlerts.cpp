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

/// Parses every line and finds what is pending. Answers the numbers of the lines that cannot be understood.
std::vector<int> ParseAlerts(const std::vector<int>& numbers) {
    const Date today = Today();
    const std::size_t count = AlertLine.size();
    std::vector<int> bad;
    AlertRec alert;
    AlertCount = static_cast<int>(count);
    PendingAlertCount = 0;
    AlertDate.resize(count);
    AlertPeriod.resize(count);
    AlertMessage.resize(count);
    PendingAlertLine.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const bool good = ParseAlertLine(AlertLine[i], alert);
        AlertDate[i] = alert.date;
        AlertPeriod[i] = alert.period;
        AlertMessage[i].swap(alert.message);
        PendingAlertLine[i].clear();
        if (!good) {
            bad.push_back(numbers[i]);
        } else if (today <= alert.date && alert.date <= today + alert.period) {
            PendingAlertLine[i] = AlertLine[i];
            ++PendingAlertCount;
        }
    }
    return bad;
}
}  // namespace

bool ParseAlertLine(std::string_view line, AlertRec& alert) {
    alert.date = {};
    alert.period = 0;
    alert.message = Middle(line, 12);
    if (alert.message.find('\xD5') != std::string::npos || alert.message.find('\xD2') != std::string::npos)
        alert.message = DecodedLineBreaks(alert.message);
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
    std::vector<int> numbers;
    Reporting("ReadAlerts", [&] { numbers = ReadReminderLines(AlertFile, AlertLine); });
    const std::vector<int> bad = ParseAlerts(numbers);
    Reporting("ReadAlerts", [&] { TellBadLines(AlertFile, bad); });
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
