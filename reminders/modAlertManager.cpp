// The alert manager's lists and edits.
#include "reminders/modAlertManager.h"

#include <algorithm>
#include <numeric>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/lineBreaks.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modCalendar.h"
#include "reminders/modAlerts.h"
#include "shell/modErrors.h"

AlertListState AlertList;

namespace {
const ClearedAtStart ClearAlertList([] { AlertList = {}; });

constexpr const char* AddingHeading = "Adding New Alert";

void ShowDate(Date date) {
    AlertList.date = date;
    AlertList.edit.date = FormatDate(date, "mm/dd/yy");
}

/// Sorts the lines into the master list and lists those of the view.
void ListAlerts() {
    std::vector<std::size_t> order(AlertLine.size());
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(),
                     [](std::size_t a, std::size_t b) { return CompareInListOrder(AlertLine[a], AlertLine[b]) < 0; });
    AlertMasterList.clear();
    AlertList.dates.clear();
    AlertList.messages.clear();
    AlertList.indexes.clear();
    for (const std::size_t i : order) {
        AlertMasterList.push_back(AlertLine[i]);
        if (ViewPendingAlerts && PendingAlertLine[i].empty()) continue;
        const bool hasDate = AlertDate[i] != Date{};
        AlertList.dates.push_back(hasDate ? FormatDate(AlertDate[i], "mm/dd/yy") : AlertLine[i].substr(0, 5));
        AlertList.messages.push_back(OneLine(AlertMessage[i]));
        AlertList.indexes.push_back(static_cast<int>(AlertMasterList.size()) - 1);
    }
    AlertList.caption = AlertMasterList.empty()
                            ? "Active Alert List (Empty)"
                            : "Active Alert List: " + std::to_string(AlertList.indexes.size()) + " Alerts";
}

/// The entry's place in the master list, or -1.
int MasterOf(int entry) {
    if (entry < 0 || entry >= static_cast<int>(AlertList.indexes.size())) return -1;
    return AlertList.indexes[static_cast<std::size_t>(entry)];
}

void EraseFromMaster(int index) {
    if (index >= 0) AlertMasterList.erase(AlertMasterList.begin() + index);
}

bool SaveAndReload(bool keepPrevious = false) {
    const bool saved = SaveAlerts(keepPrevious);
    ReadAlerts();
    FillPendingAlertList();
    LoadAlerts();
    return saved;
}

Answer AskToOverwrite() {
    return Ask(std::string("You have edited an existing alert. Do you want to over-write this alert?") + CrLf +
                   "Click Yes to save changes to the existing alert, No to save this as a" + CrLf +
                   "new alert or Cancel to return to the alert.",
               Buttons::YesNoCancel, "Existing Alert has been Changed");
}

AlertField Refuse(const std::string& message, AlertField field) {
    ShowMessage(message);
    return field;
}

/// Checks the period and the date; Saved if both can be written.
AlertField Check(const AlertEdit& typed) {
    const bool digits = typed.period.find_first_not_of("0123456789") == std::string::npos;
    if (typed.period.empty() || !digits) return Refuse("Please edit the value of the Alert Period", AlertField::Period);
    if (typed.period.size() > 4) return Refuse("An alert cannot be set greater than 9999 days.", AlertField::Period);
    const auto date = AlertDateTyped(typed.date);
    if (!date) return Refuse("Date not recognized as entered.", AlertField::Date);
    if (*date < FirstAlertDate || *date > LastAlertDate)
        return Refuse("An alert's date must lie between " + FormatDate(FirstAlertDate, "mmmm d, yyyy") + " and " +
                          FormatDate(LastAlertDate, "mmmm d, yyyy") + ".",
                      AlertField::Date);
    return AlertField::Saved;
}

bool IsExpired(const std::string& line) {
    AlertRec alert;
    return ParseAlertLine(line, alert) && alert.date < Today();
}
}  // namespace

void OpenAlertList() {
    AlertList = {};
    const bool preset = AlertPresetDate != Date{};
    if (PendingAlertCount == 0) AddingNewAlert = true;
    ShowDate(preset ? AlertPresetDate : SelectedDate);
    LoadAlerts();
}

void LoadAlerts() {
    Reporting("LoadAlerts", [] {
        if (AlertCount == 0) AddingNewAlert = true;
        ListAlerts();
        if (AlertList.indexes.empty()) AddingNewAlert = true;
        if (AddingNewAlert)
            NewAlert();
        else
            SelectAlert(0);
    });
}

void ParseAlert(int entry) {
    Reporting("ParseAlert", [entry] {
        if (MasterOf(entry) < 0) return;
        const std::string line = AlertLineOfEntry(entry);
        AlertRec alert;
        ParseAlertLine(line, alert);
        AlertList.edit = {line.substr(0, 5), std::to_string(alert.period), alert.message};
        if (alert.date != Date{}) ShowDate(alert.date);
        AlertList.heading = "Editing Existing Alert";
    });
}

void SelectAlert(int entry) {
    AlertList.selected = entry;
    AddingNewAlert = false;
    ParseAlert(entry);
}

std::string AlertLineOfEntry(int entry) {
    const int index = MasterOf(entry);
    return index < 0 ? "" : AlertMasterList[static_cast<std::size_t>(index)];
}

int AlertEntryOfLine(const std::string& line) {
    for (int entry = 0; entry < static_cast<int>(AlertList.indexes.size()); ++entry)
        if (AlertLineOfEntry(entry) == line) return entry;
    return -1;
}

void NewAlert() {
    AddingNewAlert = true;
    AlertList.heading = AddingHeading;
    AlertList.edit.period = std::to_string(AlertPeriodChoices[UsualAlertPeriod]);
    AlertList.edit.message.clear();
}

void NewAlertForDate(Date date) {
    if (!AddingNewAlert) NewAlert();
    ShowDate(date);
}

std::optional<Date> AlertDateTyped(std::string_view text) {
    if (text == FormatDate(AlertList.date, "mm/dd/yy")) return AlertList.date;
    return ReadDate(text);
}

bool TakeAlertDate(std::string_view text) {
    const auto date = AlertDateTyped(text);
    if (date) ShowDate(*date);
    return date.has_value();
}

std::optional<int> AlertPeriodChoice(std::string_view period) {
    for (std::size_t i = 0; i < AlertPeriodChoices.size(); ++i)
        if (period == std::to_string(AlertPeriodChoices[i])) return static_cast<int>(i);
    return std::nullopt;
}

AlertField SaveAlert(const AlertEdit& typed) {
    if (!AddingNewAlert && !AlertMasterList.empty()) {
        const Answer answer = AskToOverwrite();
        if (answer == Answer::Cancel) return AlertField::Abandoned;
        if (answer == Answer::No) {
            AddingNewAlert = true;
            AlertList.heading = AddingHeading;
        }
    }
    if (const AlertField wrong = Check(typed); wrong != AlertField::Saved) return wrong;
    if (!MayTurnIntoLineBreaks(typed.message, "message")) return AlertField::Message;
    const int selected = AddingNewAlert ? -1 : MasterOf(AlertList.selected);
    const std::string old = AddingNewAlert ? "" : AlertLineOfEntry(AlertList.selected);
    EraseFromMaster(selected);
    InsertInListOrder(AlertMasterList, AlertLineOf({*AlertDateTyped(typed.date),
                                                    static_cast<int>(IntegerValue(typed.period)), typed.message}));
    const AlertListState before = AlertList;
    const bool adding = AddingNewAlert;
    if (SaveAndReload()) return AlertField::Saved;
    // The write failed: what was typed stays in the window, to be saved again in the place it was meant for.
    AlertList.selected = adding ? before.selected : AlertEntryOfLine(old);
    AddingNewAlert = adding || AlertList.selected < 0;
    AlertList.heading = AddingNewAlert ? AddingHeading : before.heading;
    AlertList.date = before.date;
    AlertList.edit = typed;
    return AlertField::Abandoned;
}

void DeleteAlert() {
    if (AlertMasterList.empty()) return;
    const int index = MasterOf(AlertList.selected);
    if (index < 0) return;
    EraseFromMaster(index);
    AlertList.selected = 0;
    SaveAndReload();
}

void DeleteExpiredAlerts() { SaveAndReload(std::erase_if(AlertMasterList, IsExpired) > 0); }

void ViewAlerts(bool pendingOnly, const AlertEdit& typed) {
    ViewPendingAlerts = pendingOnly;
    const bool adding = AddingNewAlert;
    LoadAlerts();
    if (adding) AlertList.edit = typed;
}

std::optional<int> FindAlert() {
    const std::string phrase = AskForText("Find alerts whose message holds:", "Find", AlertList.lastPhrase);
    if (phrase.empty()) return std::nullopt;
    AlertList.lastPhrase = phrase;
    const int count = static_cast<int>(AlertList.messages.size());
    const int from = AddingNewAlert ? -1 : AlertList.selected;
    for (int step = 1; step <= count; ++step) {
        const int entry = (from + step) % count;
        if (FindIgnoringCase(AlertList.messages[static_cast<std::size_t>(entry)], phrase) != std::string::npos)
            return entry;
    }
    ShowMessage("No alert in the list has a message that holds \"" + phrase + "\".");
    return std::nullopt;
}

void CloseAlertList() {
    ViewPendingAlerts = false;
    AddingNewAlert = false;
    AlertPresetDate = {};
    FillPendingAlertList();
}
