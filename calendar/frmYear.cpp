// The one-year view.
#include "calendar/frmYear.h"

#include "calendar/modNavigation.h"

namespace {
constexpr int GridsInRow = 4;
}  // namespace

frmYear::frmYear() : MonthsWindow("frmYear", QStringLiteral("12 Month View"), 12, 12) { buildMonthButtons("cmdMonth"); }

void frmYear::layOut() {
    centreView();
    for (int i = 0; i < 12; ++i) {
        const int left = 150 + 2925 * (i % GridsInRow);
        const int top = 450 + 2340 * (i / GridsInRow);
        place(picture(i), left, top, 2700, 1920);
        place(monthButton(i), left + 210, top - 330, 2355, 300);
    }
    place(picNav, ViewWidth / 2.0 - 1350, 7090, 2700, 370);
}

void frmYear::goNext() { ShowNeighbourYear(1); }
void frmYear::goPrevious() { ShowNeighbourYear(-1); }
