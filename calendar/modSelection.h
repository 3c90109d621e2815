// Pointing at days, the same in all views: which cell is meant, what is selected, what the hover says.
#pragma once

#include <string>

#include "calendar/modPaint.h"

/// Selects the day at a point of a shown month, with all that follows from it: pickers, typed-in date, menu items,
/// holiday label. A point in the header or in an empty cell forgets the typed-in date and selects no day. True for a
/// day.
bool SelectAt(const ShownMonth& shown, double x, double y);

/// Selects the day at a point and readies the items of its "Date Options" menu. True for a day: the menu may open.
bool SelectForMenu(const ShownMonth& shown, double x, double y);

/// Enables of "Quick Mark" and "Clear Mark" the one that the cell calls for: it carries a mark or does not.
void EnableMarkItems(Year slot, Cell cell);

/// What the pointer finds at a point.
struct Hover {
    Cell cell;
    bool hasDate = false;  // the point lies on a day
    bool marked = false;   // the day is painted in the colour of a category: a hover text can be attached
    bool hasNote = false;
    std::string text;  // the tooltip: category, hover text, birthdays, holiday
};
Hover HoverAt(const ShownMonth& shown, double x, double y);

/// Follows the pointer: the note button and the menu items of the main window.
void ShowHover(const Hover& hover);

/// Opens the note of the date in the pickers if it is the date last clicked. An impossible date is reported.
void OpenNoteOfPickers();

/// Opens the selected date's note. The template's days have none.
void OpenNoteOfSelection();

/// The date in the cell of a shown month; the cell must hold one.
Date DateAt(const ShownMonth& shown, Cell cell);
