// Pointing at days, the same in all views.
#include "calendar/modSelection.h"

#include <optional>

#include "calendar/modCalendar.h"
#include "calendar/modShell.h"
#include "marks/modCategories.h"
#include "marks/modIcons.h"
#include "marks/modMarks.h"
#include "notes/modNotes.h"
#include "reminders/modBirthdays.h"
#include "reminders/modHolidays.h"
#include "shell/modErrors.h"

namespace {
constexpr double HeaderHeight = 0.75;

void ForgetClickedDate() { Calendar.typedIn = false; }

std::string HolidayLabel(Year slot, Cell cell) {
    const auto holiday = HolidayOfCell(slot, cell);
    return holiday ? "Holiday = " + *holiday : "No Holiday Assigned";
}

// -- The hover's text -----------------------------------------------------------------------------------------------

void AppendBirthdays(std::string& text, Year slot, Cell cell) {
    bool named = false;
    for (const std::string& name : BirthdaysOfCell(slot, cell)) {
        if (text == "Birthday")
            text += ": ";
        else if (named)
            text += ", ";
        else if (text.empty())
            text = "Birthday: ";
        else
            text += ", Birthday: ";
        text += name;
        named = true;
    }
}

void AppendHoliday(std::string& text, Year slot, Cell cell) {
    const auto holiday = HolidayOfCell(slot, cell);
    if (!holiday) return;
    if (text.empty())
        text = "Holiday: ";
    else if (text == "Holiday")
        text += ": ";
    else
        text += ", Holiday: ";
    text += *holiday;
}

std::string TextOfDay(const ShownMonth& shown, Cell cell, std::optional<int> category) {
    std::string text;
    if (category) {
        text = MarkerCaption[static_cast<std::size_t>(*category)];
        const std::string& hoverText = Marks[shown.slot].hoverText[cell];
        if (!hoverText.empty()) text += ": " + hoverText;
    }
    if (!MarkerHidden[BirthdayCategory]) AppendBirthdays(text, shown.slot, cell);
    if (!MarkerHidden[HolidayCategory]) AppendHoliday(text, shown.slot, cell);
    return text;
}

std::string TemplateText(Color color) {
    if (color == 0x0000FF) return "31 signifies the last day of any month.";
    if (color == Silver) return "Icons cannot be saved to this day.";
    return {};
}

Color PaintedAt(const ShownMonth& shown, Cell cell) {
    return shown.painted.at(static_cast<std::size_t>(cell.column)).at(static_cast<std::size_t>(cell.row));
}
}  // namespace

void EnableMarkItems(Year slot, Cell cell) {
    const bool marked = Marks[slot].flag[cell];
    Tell(Shell.enableItem, "mnuOptDateQuickMark", !marked);
    Tell(Shell.enableItem, "mnuOptDateClearMark", marked);
}

Date DateAt(const ShownMonth& shown, Cell cell) { return DateOfCell(shown.year, cell); }

bool SelectAt(const ShownMonth& shown, double x, double y) {
    const Cell cell = CellAtPoint(shown.month, x, y);
    SelectedCell = cell;
    SelectedInNextYear = shown.slot == NextYear;
    if (y <= HeaderHeight || !HasDate(shown.year, cell)) {
        ForgetClickedDate();
        return false;
    }
    SelectDate(DateAt(shown, cell));
    ForgetSelectedIcon();
    Calendar.typedInDate = SelectedDate;
    Calendar.typedIn = true;
    EnableMarkItems(shown.slot, cell);
    Tell(Shell.showInPickers, SelectedDate);
    Tell(Shell.showPosition, cell);
    Tell(Shell.showHolidayLabel, HolidayLabel(shown.slot, cell));
    return true;
}

bool SelectForMenu(const ShownMonth& shown, double x, double y) {
    if (!SelectAt(shown, x, y)) return false;
    Tell(Shell.enableItem, "mnuOptDateRemoveIcon", false);
    ShowHover(HoverAt(shown, x, y));
    return true;
}

Hover HoverAt(const ShownMonth& shown, double x, double y) {
    Hover hover;
    hover.cell = CellAtPoint(shown.month, x, y);
    hover.hasDate = y > HeaderHeight && HasDate(shown.year, hover.cell);
    if (!hover.hasDate) return hover;
    const Color color = PaintedAt(shown, hover.cell);
    if (TemplateMode) {
        hover.text = TemplateText(color);
        return hover;
    }
    const auto category = CategoryOfColor(color);
    hover.marked = category.has_value();
    hover.text = TextOfDay(shown, hover.cell, category);
    hover.hasNote = Notes.years[shown.slot].flags[hover.cell];
    return hover;
}

void ShowHover(const Hover& hover) {
    Tell(Shell.enableItem, "mnuOptDateAttachHoverText", hover.marked);
    if (hover.hasDate) Tell(Shell.enableItem, "mnuDateOptions", true);
    Tell(Shell.showNoteButton, hover.hasNote);
}

void OpenNoteOfPickers() {
    Reporting("picMonth_DblClick", [] {
        if (!Shell.dateOfPickers) return;
        const Date picked = Shell.dateOfPickers();
        if (!Calendar.typedIn || picked != Calendar.typedInDate) return;
        SelectDate(picked);
        DisplayThisNote();
    });
}

void OpenNoteOfSelection() {
    if (!TemplateMode) DisplayThisNote();
}
