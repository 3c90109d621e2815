// The icons on the month's picture.
#include "marks/frmPlacedIcons.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
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

PlacedIcons::PlacedIcons(PictureBox* month) : QObject(month), picMonth(month) {
    picMonth->setAcceptDrops(true);
    picMonth->installEventFilter(this);
    LoadPicture = LoadIconPicture;
    ShowPlacedIcons = [this] { show(); };
    ShowPalette = ShowPaletteWindow;
    ClosePalette = [] {
        if (auto* palette = OpenedWindow<frmIcons>()) palette->close();
    };
    MonthWindowOpen = true;
    show();
}

PlacedIcons::~PlacedIcons() {
    MonthWindowOpen = false;
    ShowPlacedIcons = nullptr;
}

void PlacedIcons::show() {
    for (std::size_t i = 0; i < std::max(IconPool.size(), picIcon.size()); ++i) {
        if (i >= picIcon.size()) picIcon.push_back(makeIcon(static_cast<int>(i)));
        const bool visible = i < IconPool.size() && IconPool[i].visible;
        if (visible) put(picIcon[i], IconPool[i]);
        picIcon[i]->setVisible(visible);
    }
    if (CalendarView == 1) Tell(Shell.enableItem, "mnuOptDateRemoveAll", AnyIconPlaced());
}

void PlacedIcons::put(IconImage* icon, const PlacedIcon& placed) const {
    const double unitX = picMonth->width() / GridWidth;
    const double unitY = picMonth->height() / GridHeight;
    const QString caption = FromText(IconCaption.at(static_cast<std::size_t>(placed.palette)));
    if (icon->toolTip() != caption) {
        icon->setToolTip(caption);
        icon->setAccessibleName(caption);
    }
    icon->setPicture(PictureOfSlot(placed.palette));
    icon->setSide(qRound(IconWidth * unitX));
    icon->move(qRound(placed.left * unitX), qRound(placed.top * unitY));
}

IconImage* PlacedIcons::makeIcon(int index) {
    auto* icon = Named(new IconImage(Pixels(IconTwips), picMonth), ElementName("picIcon", index));
    connect(icon, &IconImage::mouseDown, this, [this, index](QMouseEvent* event) { picIcon_MouseDown(index, event); });
    connect(icon, &IconImage::mouseMove, this, [this, index](QMouseEvent* event) { picIcon_MouseMove(index, event); });
    connect(icon, &IconImage::mouseUp, this, [this] { armed_ = false; });
    return icon;
}

void PlacedIcons::picIcon_MouseDown(int index, QMouseEvent* event) {
    Icons.currentIcon = index;
    armed_ = event->button() == Qt::LeftButton;
    pressedAt_ = event->globalPosition().toPoint();
    if (armed_) {
        if (auto* palette = OpenedWindow<frmIcons>()) palette->raise();
        return;
    }
    if (event->button() != Qt::RightButton || ShownMonths.empty()) return;
    // The menu's other commands mean the day that the icon stands on.
    const QPointF point = picMonth->toScale(picIcon[static_cast<std::size_t>(index)]->geometry().center());
    SelectAt(ShownMonths.front(), point.x(), point.y());
    ShowHover(HoverAt(ShownMonths.front(), point.x(), point.y()));
    Q_EMIT selected();
    Tell(Shell.enableItem, "mnuOptDateRemoveIcon", true);
    Tell(Shell.popUpDateOptions);
}

void PlacedIcons::picIcon_MouseMove(int index, QMouseEvent* event) {
    if (!armed_ || !MeansDrag(event, pressedAt_)) return;
    armed_ = false;
    BeginDragOfIcon(index);
    DragIcon(picMonth, picIcon[static_cast<std::size_t>(index)]->picture());
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
            show();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}
