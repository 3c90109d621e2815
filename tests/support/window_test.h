// What the tests of windows stand on.
#pragma once

#include "calendar/frmMonth.h"
#include "calendar/modGrid.h"
#include "forms/qt/window.h"
#include "tests/support/planner.h"

/// A test of windows: those still open are closed after it, unasked.
struct WindowTest : PlannerTest {
    ~WindowTest() override { UnloadAllWindows(); }
};

/// The middle of a date's cell on the picture of its month.
inline QPoint MiddleOfDay(const MonthPicture* month, Date date) {
    const Cell cell = CellOf(date);
    return month->fromScale(QRectF(cell.column, cell.row + 0.75, 1, 1)).center();
}
