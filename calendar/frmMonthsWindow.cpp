// What the three calendar windows share.
#include "calendar/frmMonthsWindow.h"

#include <QKeyEvent>
#include <QResizeEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "calendar/modCalendar.h"
#include "calendar/modNavigation.h"
#include "calendar/modSelection.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"

MonthsWindow::MonthsWindow(const char* name, const QString& caption, int view, int months)
    : Window(name, caption), picMain(Named(new QWidget(this), QStringLiteral("picMain"), caption)), view_(view) {
    setFocusPolicy(Qt::StrongFocus);
    picMain->setMouseTracking(true);
    for (int i = 0; i < months; ++i) {
        const QString pictureName = months == 1 ? QStringLiteral("picMonth") : ElementName("picMonth", i);
        auto* month = Named(new MonthPicture(picMain, i), pictureName, QStringLiteral("Month"));
        pictures_.push_back(month);
        connect(month, &PictureBox::renewed, this, &MonthsWindow::repaintLater);
        connect(month, &MonthPicture::selected, this, [this] {
            for (auto* each : pictures_) each->showSelection();
            setFocus();
        });
    }
    buildNavigation();
}

void MonthsWindow::buildNavigation() {
    picNav = Named(new QWidget(picMain), QStringLiteral("picNav"));
    cmdPrev = Named(new QPushButton(QStringLiteral("< Prev."), picNav), QStringLiteral("cmdPrev"),
                    QStringLiteral("Previous"));
    cmdNext =
        Named(new QPushButton(QStringLiteral("Next >"), picNav), QStringLiteral("cmdNext"), QStringLiteral("Next"));
    cmdPrev->setToolTip(QStringLiteral("Shortcut = Left Key"));
    cmdNext->setToolTip(QStringLiteral("Shortcut = Right Key"));
    auto* row = new QHBoxLayout(picNav);
    row->setContentsMargins(0, 0, 0, 0);
    for (auto* button : {cmdPrev, cmdNext}) {
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    }
    connect(cmdPrev, &QPushButton::clicked, this, [this] {
        goPrevious();
        setFocus();
    });
    connect(cmdNext, &QPushButton::clicked, this, [this] {
        goNext();
        setFocus();
    });
}

void MonthsWindow::buildMonthButtons(const char* name, const QString& caption) {
    for (int i = 0; i < static_cast<int>(pictures_.size()); ++i) {
        auto* button = Named(new QPushButton(caption, picMain), ElementName(name, i), QStringLiteral("Open the month"));
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QPushButton::clicked, this, [i] { OpenShownMonth(i); });
        monthButtons_.push_back(button);
    }
    QWidget::setTabOrder(monthButtons_.back(), cmdPrev);
    QWidget::setTabOrder(cmdPrev, cmdNext);
}

void MonthsWindow::captionMonth(int index, const QString& caption) {
    picture(index)->setAccessibleName(caption);
    if (monthButtons_.empty()) return;
    monthButton(index)->setText(caption);
    monthButton(index)->setAccessibleName(caption);
    monthButton(index)->setToolTip(QStringLiteral("Go to %1's Calendar").arg(caption));
}

void MonthsWindow::centreView() {
    const int zoomedWidth = static_cast<int>(ViewWidth / 15.0 * zoom());
    const int zoomedHeight = static_cast<int>(ViewHeight / 15.0 * zoom());
    picMain->setGeometry((width() - zoomedWidth) / 2, (height() - zoomedHeight) / 2, zoomedWidth, zoomedHeight);
}

std::vector<Canvas*> MonthsWindow::canvases() {
    std::vector<Canvas*> all;
    for (auto* month : pictures_) all.push_back(&month->canvas());
    return all;
}

void MonthsWindow::showDrawn() {
    renewing_ = false;
    for (auto* month : pictures_) {
        month->refresh();
        month->showSelection();
    }
}

void MonthsWindow::place(QWidget* control, double left, double top, double width, double height) const {
    const auto scaled = [this](double twips) { return static_cast<int>(std::lround(twips / 15 * zoom_)); };
    control->setGeometry(scaled(left), scaled(top), scaled(width), scaled(height));
}

void MonthsWindow::fit() {
    // The view grows with its window, in whole and even proportions; it never shrinks below its own size.
    const double fits = std::min(width() / (ViewWidth / 15.0), height() / (ViewHeight / 15.0));
    zoom_ = std::clamp(std::floor(fits * 20) / 20, 1.0, 3.0);
    layOut();
    for (auto* month : pictures_) month->fit(zoom_);
}

void MonthsWindow::resizeEvent(QResizeEvent*) {
    if (isMinimized()) return;
    fit();
    repaintNow();
}

void MonthsWindow::repaintLater() {
    // Pictures made anew are white. They are painted together, once, when all of them have their size.
    if (!std::exchange(renewing_, true))
        QMetaObject::invokeMethod(this, &MonthsWindow::repaintNow, Qt::QueuedConnection);
}

void MonthsWindow::repaintNow() {
    if (renewing_ && CalendarView == view_) RepaintCalendar();
}

void MonthsWindow::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() == Qt::ControlModifier && moveSelection(event->key())) return;
    switch (event->key()) {
        case Qt::Key_Right:
            goNext();
            return;
        case Qt::Key_Left:
            goPrevious();
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (framed() != nullptr) OpenNoteOfSelection();
            return;
        case Qt::Key_Menu:
            openDateMenu();
            return;
        case Qt::Key_F10:
            if (event->modifiers() != Qt::ShiftModifier) break;
            openDateMenu();
            return;
        case Qt::Key_Escape:
            if (view_ != 12) {
                Show1YearCalendar();
                return;
            }
            break;
        default:
            break;
    }
    Window::keyPressEvent(event);
}

/// The month with the frame around the selected day, whoever put it there; null if no month has it.
MonthPicture* MonthsWindow::framed() const {
    const auto place =
        std::find_if(pictures_.begin(), pictures_.end(), [](const auto* month) { return month->holdsSelection(); });
    return place == pictures_.end() ? nullptr : *place;
}

void MonthsWindow::openDateMenu() {
    if (auto* month = framed()) month->openMenuOfSelection();
}

bool MonthsWindow::moveSelection(int key) {
    const int days = key == Qt::Key_Left    ? -1
                     : key == Qt::Key_Right ? 1
                     : key == Qt::Key_Up    ? -7
                     : key == Qt::Key_Down  ? 7
                                            : 0;
    if (days == 0) return false;
    const Date date = SelectedDate + days;
    if (const ShownMonth* month = ShownMonthOf(date)) {
        const Cell cell = CellOf(date);
        SelectAt(*month, cell.column + 0.5, cell.row + 1.25);
        for (auto* picture : pictures_) picture->showSelection();
    }
    return true;
}

void MonthsWindow::unload() {
    if (CalendarView == view_) ShownMonths.clear();
}
