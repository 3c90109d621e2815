// What all calendar views share in drawing.
#include "calendar/modPaint.h"

#include <cmath>
#include <string>
#include <utility>

#include "base/state.h"
#include "calendar/modCalendar.h"

PaintState Paint;

namespace {
const ClearedAtStart ClearPaint([] { Paint = {}; });

constexpr std::array<std::pair<Color, Color>, 17> Contrasts{{
    {0x000000, 0xFFFFFF},
    {0x000080, 0xFFFFFF},
    {0x0000FF, 0xFFFFFF},
    {0x004080, 0xFFFFCC},
    {0x008000, 0xFFFFFF},
    {0x008080, 0xFFFFFF},
    {0x00FF00, 0x000000},
    {0x0080FF, 0x000000},
    {0x00FFFF, 0x000000},
    {0x800000, 0xFFFFFF},
    {0x800080, 0xFFFFFF},
    {0x808000, 0xFFFFFF},
    {0x808080, 0xFFFFFF},
    {0xC0C0C0, 0x000000},
    {0xFF0000, 0xFFFFFF},
    {0xFF00FF, 0x000000},
    {0xFFFF00, 0x000000},
}};

void FillBox(Canvas& canvas, Cell cell, Color fill) {
    canvas.fillBox(cell.column + 0.1, cell.row + 0.85, cell.column + 0.9, cell.row + 1.65, fill);
}

void PrintInMiddle(Canvas& canvas, Cell cell, const std::string& number, Color ink) {
    CenteredText(canvas, cell.column + 0.5, cell.row + 1, number, Paint.gridFont, ink);
}

/// A number of the six-month and one-year views that no mark stands behind.
void PrintSmallNumber(Canvas& canvas, Cell cell, const std::string& number, Color ink) {
    if (!Paint.numbersOffset || CalendarView != 6) return PrintInMiddle(canvas, cell, number, ink);
    canvas.text(cell.column + 0.05, cell.row + 1 - canvas.textHeight(Paint.gridFont) / 2, number, Paint.gridFont, ink);
}

Font NumberFont() { return {"MS Sans Serif", Paint.numbersOffset ? 10.0 : 18.0, true}; }

/// The top left corner of a number of the one-month view.
std::pair<double, double> NumberPlace(Canvas& canvas, Cell cell, const std::string& number) {
    const Font font = NumberFont();
    if (Paint.numbersOffset) return {cell.column + 0.05, cell.row + 1 - canvas.textHeight(font)};
    return {cell.column + 0.5 - canvas.textWidth(number, font) / 2, cell.row + 1.05};
}

void PrintNumber(Canvas& canvas, Cell cell, const std::string& number, Color color) {
    const auto [x, y] = NumberPlace(canvas, cell, number);
    canvas.text(x, y, number, NumberFont(), color);
}

/// Prints a number over the one that stands there. Its place is emptied first: letters have soft edges, and the colour
/// printed before would show around the new one.
void ReprintNumber(Canvas& canvas, Cell cell, const std::string& number, Color color) {
    const auto [x, y] = NumberPlace(canvas, cell, number);
    const Font font = NumberFont();
    canvas.fillBox(x - 0.02, y, x + canvas.textWidth(number, font) + 0.02, y + canvas.textHeight(font), White);
    PrintNumber(canvas, cell, number, color);
}

Color& PaintedColor(ShownMonth& shown, Cell cell) {
    return shown.painted.at(static_cast<std::size_t>(cell.column)).at(static_cast<std::size_t>(cell.row));
}
}  // namespace

void ContrastColor(Color color) {
    for (const auto& [fill, text] : Contrasts)
        if (fill == color) MarkTextColor = text;
}

const ShownMonth* ShownMonthOf(Date date) {
    for (const ShownMonth& shown : ShownMonths)
        if (shown.year == YearOf(date) && shown.month == MonthOf(date) - 1) return &shown;
    return nullptr;
}

void PaintDay(Year slot, Cell cell, int day, Color fill) {
    if (Paint.ofTemplate) return;
    ContrastColor(fill);
    if (fill == 0) MarkTextColor = Black;
    for (ShownMonth& shown : ShownMonths) {
        if (shown.slot != slot || shown.month != cell.month) continue;
        if (Paint.style == DayStyle::Number) {
            ReprintNumber(*shown.canvas, cell, std::to_string(day), fill);
            DayPaint.at(static_cast<std::size_t>(day - 1)) = {true, fill};
        } else {
            FillBox(*shown.canvas, cell, fill == 0 ? White : fill);
            PrintInMiddle(*shown.canvas, cell, std::to_string(day), MarkTextColor);
        }
        PaintedColor(shown, cell) = fill;
    }
}

void DrawNumber(ShownMonth& shown, Cell cell, int day, Color color) {
    const std::string number = std::to_string(day);
    if (Paint.style == DayStyle::Number) {
        PrintNumber(*shown.canvas, cell, number, color);
        DayPaint.at(static_cast<std::size_t>(day - 1)) = {true, color};
    } else {
        PrintSmallNumber(*shown.canvas, cell, number, color);
    }
    PaintedColor(shown, cell) = color;
}

void DrawToday(ShownMonth& shown, Cell cell, int day, Color fill) {
    if (fill == 0 || Paint.style == DayStyle::Number) return DrawNumber(shown, cell, day, fill);
    ContrastColor(fill);
    FillBox(*shown.canvas, cell, fill);
    PrintSmallNumber(*shown.canvas, cell, std::to_string(day), MarkTextColor);
    PaintedColor(shown, cell) = fill;
}

void DrawWeekdays(Canvas& canvas, int letters, double y, const Font& font) {
    for (int column = 0; column < ColumnsInGrid; ++column) {
        const std::string name = WeekdayNames.at(static_cast<std::size_t>(column));
        CenteredText(canvas, column + 0.5, y, name.substr(0, static_cast<std::size_t>(letters)), font, Black);
    }
}

void DrawGridLines(Canvas& canvas, double top, Color color) {
    for (int column = 1; column < ColumnsInGrid; ++column) canvas.line(column, top, column, GridHeight, color);
    for (int row = 0; row < RowsInGrid; ++row) canvas.line(0, row + 0.75, GridWidth, row + 0.75, color);
}

Cell CellAtPoint(int month, double x, double y) {
    return {month, static_cast<int>(std::nearbyint(x - 0.5)), static_cast<int>(std::nearbyint(y - 1.25))};
}
