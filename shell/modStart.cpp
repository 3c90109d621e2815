// Start-up without windows, and the commands of the pickers.
#include "shell/modStart.h"

#include "base/clock.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "marks/modCategories.h"
#include "marks/modIcons.h"
#include "marks/modSaveChanges.h"
#include "notes/modFUT.h"
#include "notes/modNotes.h"
#include "reminders/modAlerts.h"
#include "reminders/modBirthdays.h"
#include "shell/modErrors.h"
#include "shell/modPreferences.h"

void LoadPlanner() {
    ClearAllState();
    InstallViews();
    GetUserPreferences();
    ReadTermsOnOpening();
    Calendar.startedOn = Today();
    Calendar.yearOnDisplay = YearOf(Today());
    SelectDate(Today());
    ReadMarkerColors();
    TodayShown = !MarkerHidden[TodaysDateCategory];
    AssignThisYearsDateHolders();
    ReadAlerts();
    ReadBirthdays();
}

std::string FullYearText(std::string_view text) {
    if (text.size() == 4) return std::string(text);
    const auto date = ReadDate("Jan 1, " + std::string(text));
    return date ? Padded(YearOf(*date), 4) : std::string(text);
}

Date DateOfPickerTexts(std::string_view month, std::string_view day, std::string_view year) {
    return DateOfText(std::string(month) + " " + std::string(day) + ", " + std::string(year));
}

std::string SoftwareVersion() {
    return "Tasmoro Vers. " + std::string("1.4.4") + CrLf + "Tasmoro Build Vers. 1.4 Date 3.24.09";
}

namespace {
/// Selects the date in the pickers after the questions about unsaved changes; false where the command ends.
bool TakePickers(const char* procedure) {
    const bool inTemplate = TemplateMode;
    if (!MayGoOn()) return false;
    const bool taken = Reporting(procedure, [] {
        SelectDate(Shell.dateOfPickers());
        Tell(Shell.showInPickers, SelectedDate);
    });
    // A template that was left at the question goes from the screen, whether the date is one or not.
    if (inTemplate && !TemplateMode) ShowCurrentCalendar();
    return taken;
}
}  // namespace

void ShowViewOfPickers(const char* procedure, int view) {
    if (!TakePickers(procedure)) return;
    switch (view) {
        case 1:
            Show1MonthCalendar();
            break;
        case 6:
            Show6MonthCalendar();
            break;
        case 12:
            Show1YearCalendar();
            break;
        default:
            ShowCurrentCalendar();
    }
}

void OpenNotesOfPickers(const char* procedure) {
    if (TakePickers(procedure)) DisplayThisNote();
}

void ShowNumbersOffset(bool offset) {
    Paint.numbersOffset = offset;
    if (CalendarView == 1 || CalendarView == 6) RedrawCalendar();
}
