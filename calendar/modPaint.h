// What all calendar views share in drawing: the months on display, the painting of one day, the colour each cell has.
#pragma once

#include <array>
#include <vector>

#include "calendar/modGrid.h"
#include "forms/canvas.h"

/// One month on display: one in the one-month view, six, or twelve.
struct ShownMonth {
    Canvas* canvas = nullptr;
    int year = 0;
    int month = 0;         // 0..11
    Year slot = ThisYear;  // whose tables hold the month
    /// The colour last painted in each cell, by column and row; what the hover looks up. 0 where none was painted.
    std::array<std::array<Color, RowsInGrid>, ColumnsInGrid> painted{};
};

/// How the view shows its days.
enum class DayStyle {
    Number,  // one month: the number itself in the colour
    Box      // six months and a year: a box in the colour, the number on it
};

/// The 31 days of the one-month view: whether the number was printed, and its colour.
struct DayPaintEntry {
    bool painted = false;
    Color color = 0;
};

struct PaintState {
    std::vector<ShownMonth> shownMonths;
    DayStyle style = DayStyle::Box;
    bool numbersOffset = false;         // "Show Numbers Offset"
    bool ofTemplate = false;            // the month on display is the icons' template, no month of a year
    Font gridFont{"MS Sans Serif", 8};  // of the numbers and headers of small grids
    Color markTextColor = Black;
    std::array<DayPaintEntry, 31> dayPaint{};
};
extern PaintState Paint;

inline auto& ShownMonths = Paint.shownMonths;
inline auto& DayPaint = Paint.dayPaint;  // [day - 1]
inline Color& MarkTextColor = Paint.markTextColor;

/// The scale of a month's picture: seven columns; a header of 0.75 and six rows.
inline constexpr double GridWidth = 7;
inline constexpr double GridHeight = 6.75;

/// Sets MarkTextColor to the colour of a number printed over the fill colour. Of the 17 colours it knows; for any other
/// MarkTextColor keeps its value.
void ContrastColor(Color color);

/// The month on display that the date lies in; null if none is.
const ShownMonth* ShownMonthOf(Date date);

/// Paints the cell's day on every shown month of that slot: fill 0 gives a white box with a black number, or a black
/// number in the one-month view. The template has no year's days and is left as it is. `day` is the number
/// printed, 1..31.
void PaintDay(Year slot, Cell cell, int day, Color fill);

/// Prints the cell's number on one shown month as it stands without mark: black, or the given colour in the one-month
/// view and its template.
void DrawNumber(ShownMonth& shown, Cell cell, int day, Color color = Black);

/// Shows today's cell on one shown month: its number in the colour, or on a box of the colour. Without a colour (fill
/// 0) as any other day.
void DrawToday(ShownMonth& shown, Cell cell, int day, Color fill);

/// Prints the weekdays' first `letters` letters at height `y`.
void DrawWeekdays(Canvas& canvas, int letters, double y, const Font& font);
/// Draws the lines between the columns from `top` down, and those above each week row.
void DrawGridLines(Canvas& canvas, double top, Color color);

/// The cell of a point in a month's picture: column and row by rounding to the nearest whole, halves to the even one.
/// Outside 0..6 and 0..5 the cell is not valid.
Cell CellAtPoint(int month, double x, double y);
