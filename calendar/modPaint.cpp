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

void PaintBox(Canvas& canvas, Cell cell, const std::string& number, Color fill, Color ink) {
    canvas.fillBox(cell.column + 0.1, cell.row + 0.85, cell.column + 0.9, cell.row + 1.65, fill);
    CenteredText(canvas, cell.column + 0.5, cell.row + 1, number, Paint.gridFont, ink);
}

void PaintNumber(Canvas& canvas, Cell cell, const std::string& number, Color color) {
    const Font font{"MS Sans Serif", Paint.numbersOffset ? 10.0 : 18.0, true};
    // What was printed before shows at the edges of the new number's letters: the place is emptied first.
    const double left =
        Paint.numbersOffset ? cell.column + 0.05 : cell.column + 0.5 - canvas.textWidth(number, font) / 2;
    const double top = Paint.numbersOffset ? cell.row + 1 - canvas.textHeight(font) : cell.row + 1.05;
    canvas.text(left, top, number, font, color);
}
}  // namespace

void ContrastColor(Color color) {
    for (const auto& [fill, text] : Contrasts)
        if (fill == color) MarkTextColor = text;
}

void PaintDay(Year slot, Cell cell, int day, Color fill) {
    ContrastColor(fill);
    if (fill == 0) MarkTextColor = Black;
    for (ShownMonth& shown : ShownMonths) {
        if (shown.slot != slot || shown.month != cell.month) continue;
        if (Paint.style == DayStyle::Number)
            PaintNumber(*shown.canvas, cell, std::to_string(day), fill);
        else
            PaintBox(*shown.canvas, cell, std::to_string(day), fill == 0 ? White : fill, MarkTextColor);
        shown.painted.at(static_cast<std::size_t>(cell.column)).at(static_cast<std::size_t>(cell.row)) = fill;
    }
}

ShownMonth* FindShownMonth(Year slot, int month) {
    for (ShownMonth& shown : ShownMonths)
        if (shown.slot == slot && shown.month == month) return &shown;
    return nullptr;
}

void DrawMonthHeader(Canvas& canvas, int letters, double y, const Font& font) {
    for (int column = 0; column < ColumnsInGrid; ++column) {
        const std::string name = WeekdayNames.at(static_cast<std::size_t>(column));
        CenteredText(canvas, column + 0.5, y, name.substr(0, static_cast<std::size_t>(letters)), font, Black);
    }
    for (int column = 1; column < ColumnsInGrid; ++column) canvas.line(column, 0.375, column, GridHeight, Black);
    for (int row = 0; row < RowsInGrid; ++row) canvas.line(0, row + 0.75, GridWidth, row + 0.75, Black);
}

Cell CellAtPoint(int month, double x, double y) {
    return {month, static_cast<int>(std::nearbyint(x - 0.5)), static_cast<int>(std::nearbyint(y - 1.25))};
}
