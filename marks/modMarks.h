// Date marks: which days carry one, in which colour, with which hover text; their files; their painting.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/files.h"
#include "calendar/modGrid.h"
#include "forms/canvas.h"

struct MarksOfYear {
    int year = 0;                 // the year whose file this is; 0 while none is read: then nothing can be saved
    Grid<bool> flag;              // the cell carries a mark
    Grid<Color> color;            // 0x00BBGGRR as the file has it, hidden or not; 0 where there is none
    Grid<std::string> hoverText;  // "" where there is none
};

struct MarkState {
    std::array<MarksOfYear, 2> years;            // by Year
    std::vector<std::string> lines;              // of this year's file as last read, without the hover texts
    std::map<Date, std::string> lostHoverTexts;  // of marks cleared in this run; they return with a new mark
};
extern MarkState MarkTables;

inline auto& Marks = MarkTables.years;
inline auto& MarkFlag = Marks[ThisYear].flag;
inline auto& MarkColor = Marks[ThisYear].color;
inline auto& HoverText = Marks[ThisYear].hoverText;
inline auto& NextMarkFlag = Marks[NextYear].flag;
inline auto& NextMarkColor = Marks[NextYear].color;
inline auto& NextHoverText = Marks[NextYear].hoverText;
inline auto& MarkLines = MarkTables.lines;

/// One line of a marks file.
struct MarkRecord {
    Cell cell;
    Color color = 0;
    std::string hoverText;
};

/// "MM:CC:RR:colour", and "-" with the hover text if there is one.
std::string MarkLine(const MarkRecord& mark);
/// Reads a line. Throws Error 13 for what is no number, 6 for a colour above 0xFFFFFF, 9 for a place outside the grid.
MarkRecord ParseMark(std::string_view line);

/// The marks file of a year.
Path MarksFile(int year);

// -- Files -----------------------------------------------------------------------------------------------------------

/// Rewrites the marks file of the slot's own year from the tables. This year without marks is left without a file; of
/// next year's file the one before is kept as ".bak", and a year without marks has an empty one. A failure is reported
/// under the procedure's name, the file is then as it was, and the answer is false.
bool SaveThisYearsMarks();
bool SaveNextYearsMarks();
bool SaveMarks(Year slot);

/// Empties the slot's tables, reads the file of the slot's year into them and paints the marks on the view. No file: no
/// marks. A failure is reported under the procedure's name; the lines before it stay in effect.
void ReadAndDisplayThisYearsMarks();
void ReadAndDisplayNextYearsMarks();
void ReadAndDisplayMarks(Year slot);

/// Saves the slot's marks and, if that went well, reads them back and paints them. False if the save failed.
bool SaveAndReadMarks(Year slot);

// -- Painting --------------------------------------------------------------------------------------------------------

/// The colour in which a marked cell shows: the mark's own; where its category is hidden that of the holiday or the
/// birthday on that day; 0 where these are hidden or missing too.
Color ShownColor(Year slot, Cell cell);

/// Paints the slot's marks on the months on display, those cells that do not show their colour already.
void PaintMarks(Year slot);

/// Repaint the selected cell at once, each for its view.
void ReDraw1MonthDateMarks();
void ReDraw6MonthDateMarks();
void ReDrawDateMarks();

/// True if the view shows a holiday, a birthday on the cell: there is one and its category is not hidden.
bool ShowsHoliday(Year slot, Cell cell);
bool ShowsBirthday(Year slot, Cell cell);

// -- The selected day ------------------------------------------------------------------------------------------------

/// The slot that holds the selected day, its marks read; nothing where no cell, a cell without a date, or a day of the
/// icon template is selected.
std::optional<Year> SlotOfSelectedDay();
