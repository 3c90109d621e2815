// The six-month view.
#include "calendar/frm6Months.h"

#include "calendar/modNavigation.h"

namespace {
constexpr int GridsInRow = 3;
constexpr int MonthWidth = 3660;  // of a grid, twips
constexpr int MonthHeight = 3180;
}  // namespace

frm6Months::frm6Months() : MonthsWindow("frm6Months", QStringLiteral("6 Month View"), 6, 6) {
    buildMonthButtons("cmdView", QStringLiteral("View this Month's Details"));
}

void frm6Months::layOut() {
    centreView();
    for (int i = 0; i < 6; ++i) {
        const double left = 180 + 3840 * (i % GridsInRow);
        const bool firstRow = i < GridsInRow;
        place(monthButton(i), left + 60, firstRow ? 60 : 3660, MonthWidth - 120, 285);
        place(picture(i), left, firstRow ? 360 : 3990, MonthWidth, MonthHeight);
    }
    place(picNav, ViewWidth / 2.0 - 1350, 7200, 2700, 285);
}

void frm6Months::goNext() { ShowNeighbourHalfYear(1); }
void frm6Months::goPrevious() { ShowNeighbourHalfYear(-1); }
