// The commands that mark days.
#include "marks/modMarkCommands.h"

#include <string>

#include "base/dialogs.h"
#include "calendar/modCalendar.h"
#include "calendar/modSelection.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "marks/modCategories.h"
#include "marks/modHoverText.h"
#include "marks/modMarks.h"
#include "shell/modErrors.h"

std::function<void(Date)> OpenBirthdayManager;
std::function<void(Date)> OpenHolidayManager;

namespace {
void RepaintSelectedCell() {
    if (CalendarView == 1) ReDraw1MonthDateMarks();
    if (CalendarView == 6) ReDraw6MonthDateMarks();
    if (CalendarView == 12) ReDrawDateMarks();
}

/// Sets the selected day's mark in the tables; a hover text that was cleared with an earlier mark returns.
void SetMark(Year slot, int category) {
    MarksOfYear& marks = Marks[slot];
    const Cell cell = CellOf(SelectedDate);
    marks.flag[cell] = true;
    marks.color[cell] = MarkerColor.at(static_cast<std::size_t>(category));
    const auto lost = MarkTables.lostHoverTexts.extract(SelectedDate);
    if (lost && marks.hoverText[cell].empty()) marks.hoverText[cell] = lost.mapped();
}

bool MarkAndSave(Year slot, int category) {
    SetMark(slot, category);
    RepaintSelectedCell();
    const bool saved = SaveAndReadMarks(slot);
    Tell(Shell.showDrawn);
    EnableMarkItems(slot, CellOf(SelectedDate));
    return saved;
}

/// Marks the day in memory and opens the manager whose entries it takes to keep such a mark.
void MarkAndOpen(Year slot, int category, const std::function<void(Date)>& openManager) {
    SetMark(slot, category);
    if (openManager) openManager(SelectedDate);
}

void KeepHoverText(Date date, const std::string& text) {
    if (!text.empty()) MarkTables.lostHoverTexts[date] = text;
}

void ClearMark(Year slot) {
    MarksOfYear& marks = Marks[slot];
    const Cell cell = CellOf(SelectedDate);
    const Color color = marks.color[cell];
    marks.flag[cell] = false;
    marks.color[cell] = 0;
    if (!SaveMarks(slot)) {
        marks.flag[cell] = true;
        marks.color[cell] = color;
        return;
    }
    KeepHoverText(SelectedDate, marks.hoverText[cell]);
    RedrawCalendar();
    EnableMarkItems(slot, cell);
}

/// Tells which manager takes a day's colour away that is no mark.
void TellOfManager(Year slot) {
    const Cell cell = CellOf(SelectedDate);
    if (ShowsBirthday(slot, cell))
        ShowMessage("Use the Birthday Manager to remove this mark.");
    else if (ShowsHoliday(slot, cell))
        ShowMessage("Use the Holiday Manager to remove this mark.");
}

void KeepHoverTexts(const MarksOfYear& marks) {
    ForEachCell([&](Cell cell) {
        if (marks.flag[cell] && HasDate(marks.year, cell))
            KeepHoverText(DateOfCell(marks.year, cell), marks.hoverText[cell]);
    });
}
}  // namespace

int CategoryOfMarkAsItem(int item) { return item < QuickMarksCategory ? item : item + 2; }

void MarkSelectedDateAs(int item) {
    Reporting("mnuOptDateMarkAs_Click", [item] {
        const auto slot = SlotOfSelectedDay();
        if (!slot) return;
        const int category = CategoryOfMarkAsItem(item);
        const std::string& caption = MarkerCaption.at(static_cast<std::size_t>(category));
        if (caption == "Birthday")
            MarkAndOpen(*slot, category, OpenBirthdayManager);
        else if (caption == "Holiday")
            MarkAndOpen(*slot, category, OpenHolidayManager);
        else if (MarkAndSave(*slot, category))
            AttachHoverText();
    });
}

void QuickMarkSelectedDate() {
    Reporting("mnuOptDateQuickMark_Click", [] {
        if (const auto slot = SlotOfSelectedDay()) MarkAndSave(*slot, QuickMarksCategory);
    });
}

void ClearMarkFromSelectedDate() {
    Reporting("mnuOptDateClearMark_Click", [] {
        const auto slot = SlotOfSelectedDay();
        if (!slot) return;
        if (Marks[*slot].flag[CellOf(SelectedDate)])
            ClearMark(*slot);
        else
            TellOfManager(*slot);
    });
}

void DeleteThisYearsMarks() {
    Reporting("mnuEditDeleteMarks_Click", [] {
        if (!AskBeforeLoss(
                "Are you sure you want to clear all this year's marks? Note: Holidays and Birthdays are excluded.",
                "Preparing to clear the yearly marks"))
            return;
        const std::string told = DeleteDataFile(MarksFile(YearOfSlot(ThisYear)));
        KeepHoverTexts(Marks[ThisYear]);
        TellOfBackup(told);
        Show1YearCalendar();
    });
}
