// The three calendar views: which months they show, and the order in which a view is drawn and filled.
#include "calendar/modViews.h"

#include <algorithm>

#include "base/clock.h"
#include "base/state.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "calendar/modSelection.h"
#include "calendar/modShell.h"
#include "marks/modCategories.h"
#include "marks/modIcons.h"
#include "marks/modLabels.h"
#include "marks/modMarks.h"
#include "notes/modNotes.h"
#include "reminders/modBirthdays.h"
#include "reminders/modHolidays.h"
#include "shell/modErrors.h"

namespace {
constexpr Color GridLineColor = 0xC8C8C8;  // lighter than the numbers: the grid is there and keeps quiet

// -- Menu items -----------------------------------------------------------------------------------------------------

/// Items that make sense in the one-month view alone.
constexpr std::array<const char*, 5> OneMonthItems{"mnuFilePrintCalendar", "mnuFilePrintCalendarNoIcons",
                                                   "mnuOptDateRemoveIcon", "mnuOptDateShowIcons", "mnuOptCal"};

void EnableForView(int view) {
    for (const char* item : OneMonthItems) Tell(Shell.enableItem, item, view == 1);
    Tell(Shell.enableItem, "mnuFileSaveTemplate", view == 1 && TemplateMode);
    Tell(Shell.enableItem, "mnuFileSaveCalendar", view == 1 && !TemplateMode);
    Tell(Shell.enableItem, "mnuOptDateRemoveAll", false);
    Tell(Shell.enableItem, "mnuEditDeleteMarks", view == 12);
}

// -- Preparing ------------------------------------------------------------------------------------------------------

/// Makes `first`'s year the one on display and reads what every view needs of it.
void Prepare(Date first) {
    Calendar.firstShown = first;
    Calendar.yearOnDisplay = YearOf(first);
    ClearDateHolders();
    SetSelectedDateParts();
    ReadThisYearsNotes();
    AssignThisYearsDateHolders();
    FindSelectedCell();
}

/// Enters the view's months into the list of shown months, on the canvases the window has for them.
void ListMonths(int view, Date first) {
    const std::vector<Canvas*> canvases = Shell.openView ? Shell.openView(view) : std::vector<Canvas*>();
    ShownMonths.clear();
    Paint.style = view == 1 ? DayStyle::Number : DayStyle::Box;
    Paint.ofTemplate = view == 1 && TemplateMode;
    Paint.dayPaint = {};
    for (std::size_t i = 0; i < canvases.size(); ++i) {
        const Date month = AddMonths(first, static_cast<int>(i));
        canvases[i]->setScale(GridWidth, GridHeight);
        canvases[i]->clear();
        ShownMonths.push_back(
            {canvases[i], YearOf(month), MonthOf(month) - 1, YearOf(month) == YearOf(first) ? ThisYear : NextYear, {}});
        Tell(Shell.captionMonth, static_cast<int>(i), FormatDate(month, "mmmm, yyyy"));
    }
}

/// What all views do before they draw.
void BeginView(int view, Date first) {
    SpansNextYear = view == 6 && YearOf(AddMonths(first, 5)) != YearOf(first);
    SelectedInNextYear = false;
    Prepare(first);
    CalendarView = view;
    Tell(Shell.pressViewButton, view == 1 && TemplateMode ? 0 : view);
    EnableForView(view);
    ListMonths(view, first);
}

// -- Drawing --------------------------------------------------------------------------------------------------------

void DrawDays(ShownMonth& shown, Date today) {
    const Date first = MakeDate(shown.year, shown.month + 1, 1);
    const int days = DaysInMonth(shown.year, shown.month + 1);
    for (int day = 1; day <= days; ++day) {
        const Date date = first + (day - 1);
        if (date == today && TodayShown)
            DrawToday(shown, CellOf(date), day, MarkerColor[TodaysDateCategory]);
        else
            DrawNumber(shown, CellOf(date), day);
    }
}

void DrawSmallMonths(int letters, Date today) {
    for (ShownMonth& shown : ShownMonths) {
        const double top = letters == 3 ? 0.05 : (0.75 - shown.canvas->textHeight(Paint.gridFont)) / 2;
        DrawWeekdays(*shown.canvas, letters, top, Paint.gridFont);
        DrawGridLines(*shown.canvas, 0.75, GridLineColor);
        DrawDays(shown, today);
    }
}

void LoadThisYear() {
    if (!MarkerHidden[HolidayCategory]) {
        AssignThisYearsHolidays();
        DisplayThisYearsHolidays();
    }
    if (!MarkerHidden[BirthdayCategory]) ReadAndMarkBirthdays();
    ReadAndDisplayThisYearsMarks();
}

void LoadNextYear() {
    AssignNextYearsDateholders();
    if (!MarkerHidden[HolidayCategory]) {
        AssignNextYearsHolidays();
        DisplayNextYearsHolidays();
    }
    if (!MarkerHidden[BirthdayCategory]) ReadAndMarkNextYearsBirthdays();
    ReadAndDisplayNextYearsMarks();
    ReadNextYearsNotes();
}

/// The items act on the selected date, whichever way it was selected: by a click or, since then, with a view.
void EnableItemsOfSelection() {
    if (const ShownMonth* shown = ShownMonthOf(SelectedDate)) EnableMarkItems(shown->slot, CellOf(SelectedDate));
}

void FinishView(const std::string& caption) {
    Tell(Shell.setCaption, caption);
    if (!TemplateMode) EnableItemsOfSelection();
    Tell(Shell.showDrawn);
}

// -- One month ------------------------------------------------------------------------------------------------------

void DrawTemplateDays(ShownMonth& shown) {
    for (int day = 1; day <= 31; ++day) {
        const Color color = day == 31 ? Color{0x0000FF} : day >= 29 ? Silver : Black;
        DrawNumber(shown, CellOf(MakeDate(shown.year, 1, day)), day, color);
    }
}

/// Places the icons that belong on the month and tells where they come from.
void LoadIcons() {
    const MonthIcons source = PlaceMonthIcons();
    if (source == MonthIcons::Untouched) return;
    Tell(Shell.showTemplateLabel, source == MonthIcons::Template    ? "Monthly View = Template"
                                  : source == MonthIcons::MarksOnly ? "Monthly View = Marks Only"
                                                                    : "Monthly View = Modified");
    Tell(Shell.enableItem, "mnuOptDateRemoveAll", AnyIconPlaced());
    if (source == MonthIcons::Template) Tell(Shell.enableItem, "mnuFileSaveTemplate", true);
    if (source == MonthIcons::Modified) Tell(Shell.enableItem, "mnuFileSaveCalendar", true);
}

void DrawMonth(ShownMonth& shown, Date first) {
    const Font font{"MS Sans Serif", 10};
    CenteredText(*shown.canvas, 3.5, 0.1, TemplateMode ? "Monthly Template" : FormatDate(first, "mmmm, yyyy"), font,
                 Black);
    if (!TemplateMode) DrawWeekdays(*shown.canvas, 3, 0.475, font);
    DrawGridLines(*shown.canvas, 0.375, GridLineColor);
    shown.canvas->line(0, 0.375, GridWidth, 0.375, GridLineColor);
    if (TemplateMode)
        DrawTemplateDays(shown);
    else
        DrawDays(shown, Today());
}

void DrawOneMonth(Date first) {
    ResetMonthIcons(first);
    if (!TemplateMode) SetMonthIconFile(first);
    BeginView(1, first);
    Tell(Shell.layOutMonth, TemplateMode);
    if (!ShownMonths.empty()) DrawMonth(ShownMonths.front(), first);
    if (TemplateMode) {
        ReadTemplateTags();
        Tell(Shell.enableItem, "mnuOptDateRemoveAll", AnyIconPlaced());
        FinishView("Tasmoro - Modifying Template");
        return;
    }
    LoadThisYear();
    LoadIcons();
    FinishView("Tasmoro: " + FormatDate(first, "mmm yyyy") + " Calendar");
    DisplayTTTLabels();
}

// -- Six months and a year ------------------------------------------------------------------------------------------

void DrawSixMonths(Date first) {
    first = std::min(first, MakeDate(LastYear, 7, 1));  // no year follows the last one
    BeginView(6, first);
    DrawSmallMonths(3, Today());
    LoadThisYear();
    if (SpansNextYear) LoadNextYear();
    Tell(Shell.showTemplateLabel, std::string());
    FinishView("Tasmoro: " + FormatDate(first, "yyyy") + " Calendar");
}

void DrawYear(Date first) {
    BeginView(12, first);
    DrawSmallMonths(2, Calendar.startedOn);
    LoadThisYear();
    Tell(Shell.showTemplateLabel, std::string());
    FinishView("Tasmoro: " + FormatDate(first, "yyyy") + " Calendar");
}

/// Closes the notes editor through its prompt; false if it stays, and with it the view.
bool NotesClosed() { return !NoteEditor.close || NoteEditor.close(); }

/// The days of one slot as its tables have them, in the order in which a draw paints them.
void PaintSlot(Year slot) {
    if (!MarkerHidden[HolidayCategory]) slot == ThisYear ? DisplayThisYearsHolidays() : DisplayNextYearsHolidays();
    if (!MarkerHidden[BirthdayCategory]) slot == ThisYear ? ReadAndMarkBirthdays() : ReadAndMarkNextYearsBirthdays();
    PaintMarks(slot);
}

/// Draws the current view with `first` as its first day.
void DrawFrom(Date first) {
    if (CalendarView == 1) Reporting("Show1MonthCalendar", [first] { DrawOneMonth(first); });
    if (CalendarView == 6) Reporting("Show6MonthCalendar", [first] { DrawSixMonths(first); });
    if (CalendarView == 12) Reporting("Show1YearCalendar", [first] { DrawYear(first); });
}

}  // namespace

void Show1MonthCalendar() {
    if (!NotesClosed()) return;
    Reporting("Show1MonthCalendar", [] { DrawOneMonth(FirstOfMonth(TemplateMode ? TemplateDate : SelectedDate)); });
}

void Show6MonthCalendar() {
    LeaveTemplateMode();
    if (!NotesClosed()) return;
    Reporting("Show6MonthCalendar", [] { DrawSixMonths(FirstOfMonth(SelectedDate)); });
}

void Show1YearCalendar() {
    LeaveTemplateMode();
    if (!NotesClosed()) return;
    Reporting("Show1YearCalendar", [] { DrawYear(MakeDate(YearOf(SelectedDate), 1, 1)); });
}

void ShowCurrentCalendar() {
    if (CalendarView == 1) Show1MonthCalendar();
    if (CalendarView == 6) Show6MonthCalendar();
    if (CalendarView == 12) Show1YearCalendar();
}

void RedrawCalendar() {
    NotesClosed();
    DrawFrom(Calendar.firstShown);
}

void RepaintCalendar() {
    if (CalendarView == 0 || ShownMonths.empty()) return;
    const Date first = Calendar.firstShown;
    ListMonths(CalendarView, first);
    if (CalendarView == 1)
        DrawMonth(ShownMonths.front(), first);
    else
        DrawSmallMonths(CalendarView == 6 ? 3 : 2, CalendarView == 6 ? Today() : Calendar.startedOn);
    PaintSlot(ThisYear);
    if (SpansNextYear) PaintSlot(NextYear);
    Tell(Shell.showDrawn);
}

void InstallViews() {
    RedrawForDate = [] {
        if (CalendarView == 0)
            Prepare(SelectedDate);
        else
            DrawFrom(CalendarView == 12 ? MakeDate(DisplayedYear, 1, 1) : FirstOfMonth(SelectedDate));
    };
}
