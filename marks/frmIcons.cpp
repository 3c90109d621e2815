// The palette.
#include "marks/frmIcons.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

#include "calendar/modCalendar.h"
#include "forms/qt/iconPictures.h"
#include "forms/qt/text.h"
#include "marks/frmIconTag.h"
#include "marks/frmPlacedIcons.h"
#include "marks/modIcons.h"
#include "shell/modErrors.h"

namespace {
constexpr int Columns = 12;
}

frmIcons::frmIcons() : Window("frmIcons", QStringLiteral("Available Icons")) {
    auto* picMain = Named(new QWidget(this), QStringLiteral("picMain"), windowTitle());
    imgIcon = Named(new IconGrid(PaletteSize, Columns, picMain), QStringLiteral("grdIcons"), windowTitle());
    auto* hint = new QLabel(tr("Drag an icon onto a day of the month. Right-click an icon to change it."), this);
    hint->setAlignment(Qt::AlignCenter);
    auto* inner = new QVBoxLayout(picMain);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->addWidget(imgIcon);
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(picMain);
    outer->addWidget(hint);
    outer->setSizeConstraint(QLayout::SetFixedSize);

    connect(imgIcon, &IconGrid::mouseDown, this, &frmIcons::imgIcon_MouseDown);
    connect(imgIcon, &IconGrid::mouseMove, this, &frmIcons::imgIcon_MouseMove);
    connect(imgIcon, &IconGrid::mouseUp, this, [this] { armed_ = false; });
    connect(imgIcon, &IconGrid::chosen, this, &frmIcons::placeOnSelectedDay);
    connect(imgIcon, &IconGrid::menuAsked, this, [](int index) { ShowIconTag(index); });

    PaletteShown = true;
    LoadPicture = LoadIconPicture;
    ReadIconTags();
    Reporting("ReassignIconTags", [this] { ReassignIconTags(); });
    placeBesideTheMonth();
    if (!IconsLoading) MakeMeTopmost(this);
}

void frmIcons::placeBesideTheMonth() {
    if (MainWindow() == nullptr) return;
    QRect wanted(QPoint(), layout()->totalSizeHint());
    constexpr QPoint TitleBar(0, 40);  // the geometry is that without the frame
    wanted.moveBottomRight(MainWindow()->geometry().bottomRight() - TitleBar);
    PlaceOnScreens(this, wanted);
}

void frmIcons::unload() { PaletteShown = false; }

void frmIcons::ReassignIconTags() {
    for (int slot = 0; slot < PaletteSize; ++slot) {
        const QString caption = FromText(IconCaption.at(static_cast<std::size_t>(slot)));
        (*imgIcon)[slot]->setPicture(PictureOfSlot(slot));
        (*imgIcon)[slot]->setToolTip(TipOf(caption));
        (*imgIcon)[slot]->setAccessibleName(caption);
    }
}

void frmIcons::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_T && event->modifiers() == Qt::ControlModifier && TemplateMode)
        SaveTemplateIcons();
    else
        Window::keyPressEvent(event);
}

void frmIcons::imgIcon_MouseDown(int index, QMouseEvent* event) {
    armed_ = false;
    if (event->button() == Qt::RightButton) ShowIconTag(index);
    if (event->button() != Qt::LeftButton) return;
    pressedAt_ = event->globalPosition().toPoint();
    armed_ = MayDragFromPalette();
}

void frmIcons::imgIcon_MouseMove(int index, QMouseEvent* event) {
    if (!armed_ || !MeansDrag(event, pressedAt_)) return;
    armed_ = false;
    BeginDragFromPalette(index);
    DragIcon(this, (*imgIcon)[index]->picture());
}

void frmIcons::placeOnSelectedDay(int index) {
    if (!MayDragFromPalette()) return;
    const Cell cell = CellOf(SelectedDate);
    BeginDragFromPalette(index);
    DropIcon(cell.column + 0.5, cell.row + 1.25);
}

void ShowPaletteWindow() { ShowWindow<frmIcons>(); }
void ShowPaletteForMonth() {
    if (CalendarView == 1) ShowPaletteWindow();
}
