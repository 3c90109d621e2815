// The icons on the month's picture.
#include "marks/frmPlacedIcons.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <optional>
#include <utility>

#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "calendar/modSelection.h"
#include "calendar/modShell.h"
#include "forms/qt/canvas.h"
#include "forms/qt/iconPictures.h"
#include "forms/qt/text.h"
#include "forms/qt/window.h"
#include "marks/frmIcons.h"
#include "marks/modIcons.h"

namespace {
QString IconMime() { return QStringLiteral("application/x-tasmoro-icon"); }

/// A drag as it runs, and the point of the month on which it ended. What follows from a drop waits until the drag is
/// over: a message could not be answered before.
struct RunningDrag {
    bool running = false;
    std::optional<QPointF> end;  // in the units of the month's picture
};
RunningDrag Running;
}  // namespace

void DragIcon(QWidget* source, int picture) {
    auto* drag = new QDrag(source);
    auto* data = new QMimeData;
    data->setData(IconMime(), QByteArray::number(DragIconIndex));
    drag->setMimeData(data);
    constexpr int Side = 24;
    drag->setPixmap(IconPixmap(picture, Side, source->devicePixelRatioF()));
    drag->setHotSpot(QPoint(Side / 2, Side / 2));
    Running = {true, {}};
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    const auto end = std::exchange(Running, {}).end;
    if (end)
        DropIcon(end->x(), end->y());
    else
        CancelDrag();
}

bool MeansDrag(const QMouseEvent* event, QPoint pressedAt) {
    return (event->buttons() & Qt::LeftButton) != 0 &&
           (event->globalPosition().toPoint() - pressedAt).manhattanLength() >= QApplication::startDragDistance();
}

PlacedIcons::PlacedIcons(PictureBox* month) : QWidget(month), picMonth(month) {
    Named(this, QStringLiteral("picIcon"), tr("Icons"));
    setMouseTracking(true);
    resize(month->size());
    picMonth->setAcceptDrops(true);
    picMonth->installEventFilter(this);
    LoadPicture = LoadIconPicture;
    ShowPlacedIcons = [this] { showIcons(); };
    ShowPalette = ShowPaletteWindow;
    ClosePalette = [] {
        if (auto* palette = OpenedWindow<frmIcons>()) palette->close();
    };
    MonthWindowOpen = true;
}

PlacedIcons::~PlacedIcons() {
    MonthWindowOpen = false;
    ShowPlacedIcons = nullptr;
}

void PlacedIcons::showIcons() {
    update();
    if (CalendarView == 1) Tell(Shell.enableItem, "mnuOptDateRemoveAll", AnyIconPlaced());
}

QRect PlacedIcons::placeOf(int icon) const {
    const PlacedIcon& placed = IconPool.at(static_cast<std::size_t>(icon));
    const double unitX = width() / GridWidth;
    const double unitY = height() / GridHeight;
    const int side = qRound(IconWidth * unitX);
    return {qRound(placed.left * unitX), qRound(placed.top * unitY), side, side};
}

int PlacedIcons::iconAt(QPoint point) const {
    for (int icon = static_cast<int>(IconPool.size()) - 1; icon >= 0; --icon)
        if (IconPool[static_cast<std::size_t>(icon)].visible && placeOf(icon).contains(point)) return icon;
    return -1;
}

void PlacedIcons::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (std::size_t i = 0; i < IconPool.size(); ++i) {
        if (!IconPool[i].visible) continue;
        const QRect place = placeOf(static_cast<int>(i));
        painter.drawPixmap(place.topLeft(),
                           IconPixmap(PictureOfSlot(IconPool[i].palette), place.width(), devicePixelRatioF()));
    }
}

bool PlacedIcons::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && showToolTip(static_cast<QHelpEvent*>(event))) return true;
    return QWidget::event(event);
}

bool PlacedIcons::showToolTip(QHelpEvent* event) {
    const int icon = iconAt(event->pos());
    if (icon < 0) return false;
    const auto palette = static_cast<std::size_t>(IconPool[static_cast<std::size_t>(icon)].palette);
    QToolTip::showText(event->globalPos(), TipOf(FromText(IconCaption.at(palette))), this, placeOf(icon));
    return true;
}

void PlacedIcons::mousePressEvent(QMouseEvent* event) {
    const int icon = iconAt(event->position().toPoint());
    if (icon < 0)
        event->ignore();
    else
        picIcon_MouseDown(icon, event);
}

void PlacedIcons::picIcon_MouseDown(int index, QMouseEvent* event) {
    Icons.currentIcon = index;
    armed_ = event->button() == Qt::LeftButton ? index : -1;
    pressedAt_ = event->globalPosition().toPoint();
    if (armed_ >= 0) {
        if (auto* palette = OpenedWindow<frmIcons>()) palette->raise();
        return;
    }
    if (event->button() != Qt::RightButton || ShownMonths.empty()) return;
    // The menu's other commands mean the day that the icon stands on.
    const QPointF point = picMonth->toScale(placeOf(index).center());
    SelectForMenu(ShownMonths.front(), point.x(), point.y());
    Q_EMIT selected();
    Icons.currentIcon = index;  // selecting the day has made it forgotten
    Tell(Shell.enableItem, "mnuOptDateRemoveIcon", true);
    Tell(Shell.popUpDateOptions, pressedAt_.x(), pressedAt_.y());
}

void PlacedIcons::mouseMoveEvent(QMouseEvent* event) {
    if (armed_ < 0 && iconAt(event->position().toPoint()) < 0) event->ignore();
    if (armed_ < 0 || !MeansDrag(event, pressedAt_)) return;
    const int icon = std::exchange(armed_, -1);
    if (icon >= static_cast<int>(IconPool.size()) || IconPool[static_cast<std::size_t>(icon)].free) return;
    BeginDragOfIcon(icon);
    DragIcon(picMonth, PictureOfSlot(DragIconIndex));
}

void PlacedIcons::mouseReleaseEvent(QMouseEvent* event) {
    if (std::exchange(armed_, -1) < 0) event->ignore();
}

void PlacedIcons::mouseDoubleClickEvent(QMouseEvent* event) {
    if (iconAt(event->position().toPoint()) < 0) event->ignore();
}

void PlacedIcons::picMonth_DragDrop(QDropEvent* event) {
    const QPointF point = picMonth->toScale(event->position());
    event->setDropAction(Qt::MoveAction);
    event->accept();
    if (Running.running)
        Running.end = point;
    else
        DropIcon(point.x(), point.y());
}

bool PlacedIcons::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto* move = static_cast<QDragMoveEvent*>(event);
            if (move->mimeData()->hasFormat(IconMime())) move->acceptProposedAction();
            return true;
        }
        case QEvent::Drop:
            picMonth_DragDrop(static_cast<QDropEvent*>(event));
            return true;
        case QEvent::Resize:
            resize(picMonth->size());
            break;
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}
