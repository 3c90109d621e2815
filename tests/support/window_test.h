// What the tests of windows stand on.
#pragma once

#include <QTest>
#include <QtWidgets>

#include "calendar/frmMonth.h"
#include "forms/qt/canvas.h"
#include "forms/qt/text.h"
#include "forms/qt/window.h"
#include "tests/support/planner.h"

/// A test of windows: those still open are closed after it, unasked.
struct WindowTest : PlannerTest {
    ~WindowTest() override { UnloadAllWindows(); }

    /// Clicks the button; a box with the phrase must come of it.
    void click(QAbstractButton* button, const char* told) {
        dialogs.expect(told);
        button->click();
        dialogs.verify();
    }
};

/// The middle of a date's cell on the picture of its month.
inline QPoint MiddleOfDay(const MonthPicture* month, Date date) {
    const Cell cell = CellOf(date);
    return month->fromScale(QRectF(cell.column, cell.row + 0.75, 1, 1)).center();
}

/// Drags what is carried over the widget and drops it; false if the widget takes it not.
inline bool DragAndDrop(QWidget* onto, QPoint place, const char* type, const char* carried) {
    QMimeData data;
    data.setData(QLatin1String(type), carried);
    QDragEnterEvent enter(place, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(onto, &enter);
    QDropEvent drop(place, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(onto, &drop);
    return enter.isAccepted() && drop.isAccepted();
}
