// One month's picture in a calendar window.
#include "calendar/frmMonthPicture.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

#include "calendar/modCalendar.h"
#include "calendar/modSelection.h"
#include "calendar/modShell.h"
#include "forms/qt/text.h"
#include "marks/modIcons.h"
#include "notes/modNotes.h"

MonthPicture::MonthPicture(QWidget* parent, int index) : PictureBox(parent), index_(index) {
    setFocusPolicy(Qt::NoFocus);
}

const ShownMonth* MonthPicture::shown() const {
    const auto index = static_cast<std::size_t>(index_);
    return index < ShownMonths.size() ? &ShownMonths[index] : nullptr;
}

bool MonthPicture::holdsSelection() const {
    const ShownMonth* month = shown();
    return month != nullptr && SelectedCell.month == month->month && HasDate(month->year, SelectedCell) &&
           DateAt(*month, SelectedCell) == SelectedDate;
}

void MonthPicture::showSelection() {
    setFrame(holdsSelection() ? QRectF(SelectedCell.column, SelectedCell.row + 0.75, 1, 1) : QRectF());
}

void MonthPicture::mousePressEvent(QMouseEvent* event) {
    if (const ShownMonth* month = shown()) {
        const QPointF point = toScale(event->position());
        const bool forMenu = event->button() == Qt::RightButton;
        const bool day = (forMenu ? SelectForMenu : SelectAt)(*month, point.x(), point.y());
        Q_EMIT selected();
        const QPoint place = event->globalPosition().toPoint();
        if (day && forMenu) Tell(Shell.popUpDateOptions, place.x(), place.y());
    }
    PictureBox::mousePressEvent(event);
}

void MonthPicture::openMenuOfSelection() {
    const ShownMonth* month = shown();
    if (month == nullptr || !SelectForMenu(*month, SelectedCell.column + 0.5, SelectedCell.row + 1.25)) return;
    if (CalendarView == 1) Tell(Shell.enableItem, "mnuOptDateRemoveIcon", SelectIconOf(SelectedDate));
    const QRect cell = fromScale(QRectF(SelectedCell.column, SelectedCell.row + 0.75, 1, 1));
    const QPoint place = mapToGlobal(cell.center());
    Tell(Shell.popUpDateOptions, place.x(), place.y());
}

void MonthPicture::mouseMoveEvent(QMouseEvent* event) {
    const ShownMonth* month = shown();
    const QPoint point = event->position().toPoint();
    if (month != nullptr && !NotesWindowOpen && point != lastPoint_) {
        lastPoint_ = point;
        const QPointF place = toScale(event->position());
        ShowHover(HoverAt(*month, place.x(), place.y()));
    }
    PictureBox::mouseMoveEvent(event);
}

void MonthPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) OpenNoteOfPickers();
    PictureBox::mouseDoubleClickEvent(event);
}

void MonthPicture::leaveEvent(QEvent* event) {
    Tell(Shell.showNoteButton, false);
    PictureBox::leaveEvent(event);
}

bool MonthPicture::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        showToolTip(static_cast<QHelpEvent*>(event));
        return true;
    }
    return PictureBox::event(event);
}

void MonthPicture::showToolTip(QHelpEvent* event) {
    const ShownMonth* month = shown();
    if (month == nullptr || NotesWindowOpen) return;
    const QPointF point = toScale(event->pos());
    const Hover hover = HoverAt(*month, point.x(), point.y());
    if (hover.text.empty()) {
        QToolTip::hideText();
        return;
    }
    // Shown for this cell alone: over the next one it goes, and comes again with that day's text.
    const QRect cell = fromScale(QRectF(hover.cell.column, hover.cell.row + 0.75, 1, 1));
    QToolTip::showText(event->globalPos(), TipOf(FromText(hover.text)), this, cell);
}
