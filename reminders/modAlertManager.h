// What the alert manager does: the list it shows, the alert being edited, saving and deleting.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dates.h"

/// The days ahead that have an option button of their own.
inline constexpr std::array<int, 6> AlertPeriodChoices{1, 2, 3, 5, 7, 10};
inline constexpr int UsualAlertPeriod = 4;  // "7 days before this date"

/// What the edit controls hold.
struct AlertEdit {
    std::string date;     // "mm/dd/yy", or as typed
    std::string period;   // digits
    std::string message;  // with its line breaks
    bool operator==(const AlertEdit&) const = default;
};

struct AlertListState {
    int selected = 0;                   // the remembered entry of the lists shown; -1 for none
    std::vector<std::string> dates;     // the list by date: "mm/dd/yy"
    std::vector<std::string> messages;  // the list by message, in the same order, one line each
    std::vector<int> indexes;           // of each entry in AlertMasterList
    std::string caption;                // over the list
    std::string heading;                // "Adding New Alert" or "Editing Existing Alert"
    AlertEdit edit;
    Date date;  // that edit.date stands for, with its four-digit year
    std::string lastPhrase;
};
extern AlertListState AlertList;

/// Where the window puts the focus after a save.
enum class AlertField { Date, Period, Message, Saved, Abandoned };

/// Prepares a window that opens: the first alert of the list, or a new alert for AlertPresetDate or the selected date.
void OpenAlertList();

/// Rebuilds the lists from the alert tables and selects: a new alert, or the first one listed.
void LoadAlerts();

/// Shows the entry in the edit controls: AlertList.edit. Nothing for an entry that is not there.
void ParseAlert(int entry);

/// A click on an entry: it is remembered and edited.
void SelectAlert(int entry);

/// The line of an entry of the lists, which a save may move; "" for none.
std::string AlertLineOfEntry(int entry);
/// The entry of a line among those listed, or -1.
int AlertEntryOfLine(const std::string& line);

/// Begins a new alert; the date stays.
void NewAlert();

/// Proposes another date for a new alert: what has been typed of one stays.
void NewAlertForDate(Date date);

/// The date that a typed text means; the shown date's own text keeps its century. Nothing for no date.
std::optional<Date> AlertDateTyped(std::string_view text);
/// Takes the text as the date, if it is one, into AlertList.date and edit.date.
bool TakeAlertDate(std::string_view text);

/// The option button (0..5) of a period as typed; nothing where none has it.
std::optional<int> AlertPeriodChoice(std::string_view period);

/// Asks, checks and saves what the edit controls hold. What is refused is told, and answers the field to correct;
/// Abandoned after Cancel or a failed write.
AlertField SaveAlert(const AlertEdit& typed);

/// Removes the remembered entry and saves. Nothing on an empty list.
void DeleteAlert();

/// Removes every alert dated before today and saves. The file as it was is kept in "Backup" if one was removed.
void DeleteExpiredAlerts();

/// Lists pending alerts only, or all. A new alert being typed (`typed`) stays.
void ViewAlerts(bool pendingOnly, const AlertEdit& typed);

/// Asks for a phrase and answers the next entry whose message holds it, from the remembered one on and around the end.
/// Nothing, after a message, if there is none; nothing for an empty phrase.
std::optional<int> FindAlert();

/// What closing the window does.
void CloseAlertList();
