// The one-month view.
#include "calendar/frmMonth.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWheelEvent>
#include <utility>

#include "calendar/modNavigation.h"
#include "forms/qt/fittingLabel.h"
#include "forms/qt/text.h"
#include "marks/frmPlacedIcons.h"
#include "marks/modIcons.h"
#include "marks/modLabels.h"

namespace {
constexpr int MonthWidth = 8900;  // of the grid, twips
constexpr int MonthHeight = 7000;
constexpr int LabelPitch = 300;
constexpr int SheetHeight = 10800;
constexpr int LeftWidth = 2460;
}  // namespace

frmMonth::frmMonth() : MonthsWindow("frmMonth", QStringLiteral("1 Month View"), 1, 1) {
    buildLeftPanel();
    connect(new PlacedIcons(picMonth()), &PlacedIcons::selected, picMonth(), &MonthPicture::showSelection);
    DayLabelsAreSeen = [this] { return labelsAreSeen(); };
    ShowDayLabels = [this] { showLabels(); };
    CloseMonthWindow = [this] { close(); };
}

frmMonth::~frmMonth() {
    DayLabelsAreSeen = nullptr;
    ShowDayLabels = nullptr;
    CloseMonthWindow = nullptr;
}

bool frmMonth::labelsAreSeen() {
    labelsMissed_ = Twips(width()) < 10000;
    return !labelsMissed_;
}

void frmMonth::showLabels() {
    for (std::size_t i = 0; i < lblTTT.size(); ++i) {
        const bool used = i < DayLabels.labels.size();
        const QString caption = used ? FromText(CaptionOf(DayLabels.labels[i])) : QString();
        lblTTT[i]->setText(caption);
        lblTTT[i]->setToolTip(TipOf(caption));  // also where all of it is seen
        QPalette colors;
        if (used) colors.setColor(QPalette::WindowText, FromColor(DayLabels.labels[i].color));
        lblTTT[i]->setPalette(colors);
        lblTTT[i]->setVisible(used);
    }
}

void frmMonth::buildLeftPanel() {
    picLeft = Named(new QWidget(picMain), QStringLiteral("picLeft"), QStringLiteral("Day labels"));
    picTTT = Named(new QWidget(picLeft), QStringLiteral("picTTT"), QStringLiteral("Day labels"));
    VScroll1 = Named(new QScrollBar(Qt::Vertical, picLeft), QStringLiteral("VScroll1"),
                     QStringLiteral("Scroll the day labels"));
    VScroll1->setRange(0, 5400);
    VScroll1->setSingleStep(300);
    VScroll1->setPageStep(5400);
    connect(VScroll1, &QScrollBar::valueChanged, this, &frmMonth::VScroll1_Change);
    // The labels are printed in the colours of the categories, which are chosen for white paper.
    picTTT->setAutoFillBackground(true);
    picTTT->setPalette(QPalette(Qt::black, Qt::white));
    for (int i = 0; i < 36; ++i) {
        auto* label = Named(new FittingLabel({}, picTTT), ElementName("lblTTT", i));
        label->hide();
        lblTTT[static_cast<std::size_t>(i)] = label;
    }
}

void frmMonth::setTemplateMode(bool templateMode) {
    templateMode_ = templateMode;
    picNav->setVisible(!templateMode);
    picLeft->setVisible(leftPanelVisible_ && !templateMode_);
}

void frmMonth::layOut() {
    picMain->setGeometry(rect());
    const bool wide = Twips(width()) >= 11500;
    leftPanelVisible_ = wide;
    const int side = wide ? 2700 : 0;
    const double used = (side + MonthWidth + (wide ? 190 : 0)) / 15.0 * zoom();
    const double left = std::max(0.0, (width() - used) / 2) * 15 / zoom();
    const double top = std::max(0.0, (height() - ViewHeight / 15.0 * zoom()) / 2) * 15 / zoom();
    place(picture(0), left + side, top, MonthWidth, MonthHeight);
    place(picLeft, left + 120, top, LeftWidth, MonthHeight);
    place(picNav, left + side + MonthWidth / 2.0 - 1350, top + MonthHeight + 80, 2700, 370);
    layOutLeftPanel();
    picLeft->setVisible(leftPanelVisible_ && !templateMode_);
    if (wide && std::exchange(labelsMissed_, false)) DisplayTTTLabels();
}

void frmMonth::layOutLeftPanel() {
    const int bar = VScroll1->sizeHint().width();
    VScroll1->setGeometry(picLeft->width() - bar, 0, bar, picLeft->height());
    const auto scaled = [this](int twips) { return static_cast<int>(twips / 15.0 * zoom()); };
    picTTT->resize(picLeft->width() - bar, scaled(SheetHeight));
    for (int i = 0; i < 36; ++i)
        lblTTT[static_cast<std::size_t>(i)]->setGeometry(4, scaled(LabelPitch * i), picTTT->width() - 8,
                                                         scaled(LabelPitch));
    VScroll1->setValue(0);
    VScroll1_Change(0);
}

void frmMonth::VScroll1_Change(int value) { picTTT->move(0, -static_cast<int>(value / 15.0 * zoom())); }

void frmMonth::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_T && event->modifiers() == Qt::ControlModifier && TemplateMode)
        SaveTemplateIcons();
    else if (event->key() == Qt::Key_PageDown)
        VScroll1->triggerAction(QAbstractSlider::SliderPageStepAdd);
    else if (event->key() == Qt::Key_PageUp)
        VScroll1->triggerAction(QAbstractSlider::SliderPageStepSub);
    else
        MonthsWindow::keyPressEvent(event);
}

/// Over the labels the wheel moves them, as it does over the bar beside them.
void frmMonth::wheelEvent(QWheelEvent* event) {
    const QPoint place = picLeft->mapFrom(this, event->position().toPoint());
    if (picLeft->isVisible() && picLeft->rect().contains(place)) QCoreApplication::sendEvent(VScroll1, event);
}

void frmMonth::goNext() { ShowNeighbourMonth(1); }
void frmMonth::goPrevious() { ShowNeighbourMonth(-1); }
