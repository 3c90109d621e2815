// Alerts: reminders of one date with a message and a number of days ahead; their file, and which are pending.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dates.h"

/// The dates whose day number has five digits: 18 May 1927 to 13 October 2173.
inline constexpr Date FirstAlertDate{10000};
inline constexpr Date LastAlertDate{99999};
inline constexpr int LongestAlertPeriod = 9999;  // days

/// What the window's alert button and bell show.
struct AlertIndicatorState {
    bool pending = false;  // yellow button, element 2's picture; plain button, element 1's picture otherwise
    std::string caption = "No Pending Alerts";
    std::string toolTip = "Click to View";
    std::string imageToolTip = "No Alerts Exist";
};

struct AlertState {
    std::vector<std::string> line;         // the file's lines, blank ones left out
    std::vector<Date> date;                // by the same index; day 0 where the line has none
    std::vector<int> period;               // days ahead, 0..9999
    std::vector<std::string> message;      // with its line breaks
    int count = 0;                         // of lines
    std::vector<std::string> pendingLine;  // the line where the alert is pending, "" otherwise
    int pendingCount = 0;
    AlertIndicatorState indicator;
    std::vector<std::string> pendingEntries;  // the window's pending list: record entries, sorted
    std::vector<std::string> master;          // what SaveAlerts writes: whole lines, sorted
    bool addingNew = false;                   // the manager's next save adds an alert; otherwise it edits one
    bool viewPending = false;                 // the manager lists pending alerts only
    Date presetDate;                          // proposed for a new alert; day 0 for none
};
extern AlertState AlertTables;

inline auto& AlertLine = AlertTables.line;
inline auto& AlertDate = AlertTables.date;
inline auto& AlertPeriod = AlertTables.period;
inline auto& AlertMessage = AlertTables.message;
inline int& AlertCount = AlertTables.count;
inline auto& PendingAlertLine = AlertTables.pendingLine;
inline int& PendingAlertCount = AlertTables.pendingCount;
inline auto& AlertIndicator = AlertTables.indicator;
inline auto& PendingAlertEntries = AlertTables.pendingEntries;
inline auto& AlertMasterList = AlertTables.master;
inline bool& AddingNewAlert = AlertTables.addingNew;
inline bool& ViewPendingAlerts = AlertTables.viewPending;
inline Date& AlertPresetDate = AlertTables.presetDate;

/// Reads the file, finds what is pending today and sets the indicator. Lines that cannot be understood stay in the
/// tables as they are, never pending, and are reported together once the others are in effect.
void ReadAlerts();

/// Rewrites the file from AlertMasterList and shows "Alert List Updated."; an empty list leaves no file and shows
/// nothing. `keepPrevious`: the file as it was is first copied to "Backup". False after a failure; it is reported and
/// the file is then as it was.
bool SaveAlerts(bool keepPrevious = false);

/// Fills the table of the window's pending list and shows it.
void FillPendingAlertList();

/// The indicator shows "Alerts Ignored" until the next reading.
void IgnorePendingAlerts();

/// An alert as its line holds it.
struct AlertRec {
    Date date;
    int period = 0;       // days
    std::string message;  // with its line breaks
};

/// Reads one line; false where a field is no number: the message is then the whole line, so that it can be seen.
bool ParseAlertLine(std::string_view line, AlertRec& alert);
/// The line of an alert whose date has a five-digit day number.
std::string AlertLineOf(const AlertRec& alert);

/// A message as lists show it: on one line.
std::string OneLine(std::string_view message);

/// "Alert Date = mm/dd/yy" for the entry of the pending list. "" for an entry without an alert.
std::string PendingAlertDate(std::string_view entry);

// -- Hooks: filled by the main window --------------------------------------------------------------------------------

/// Shows AlertIndicator.
extern std::function<void()> ShowAlertIndicator;
/// Shows PendingAlertEntries.
extern std::function<void()> ShowPendingAlerts;
