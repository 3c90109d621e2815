// The window that chooses which marker categories are displayed.
#include "marks/frmMarkers.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QPainter>
#include <QPointer>
#include <QShortcut>
#include <QSignalBlocker>

#include "forms/qt/canvas.h"
#include "forms/qt/text.h"
#include "marks/modMarkerDisplay.h"

namespace {
constexpr int BoxRows = 7;
constexpr int LongestCaption = 36;  // in usual letters

std::size_t At(int index) { return static_cast<std::size_t>(index); }

/// A small square of the category's colour.
QIcon Swatch(Color color, const QWidget* shownOn) {
    const int side = shownOn->fontMetrics().height();
    const qreal ratio = shownOn->devicePixelRatioF();
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(shownOn->palette().color(QPalette::Mid));
    painter.setBrush(FromColor(color));
    painter.drawRoundedRect(QRectF(1.5, 1.5, side - 3, side - 3), 2, 2);
    return picture;
}
}  // namespace

frmMarkers::frmMarkers() : Window("frmMarkers", QStringLiteral("Marker Options")) {
    makeControls();
    layOut();
    showBoxes();
    ShowCategoriesInBoxes = [window = QPointer(this)] {
        if (window) window->showBoxes();
    };
}

void frmMarkers::makeControls() {
    lblMain = Named(new QLabel(QStringLiteral("Check Which Markers to Display")), QStringLiteral("lblMain"));
    for (int k = 0; k < CategoryCount; ++k) {
        chkMarker[At(k)] = Named(new QCheckBox, ElementName("chkMarker", k));
        chkMarker[At(k)]->setToolTip(QStringLiteral("Checked marks are displayed on the calendar"));
        connect(chkMarker[At(k)], &QCheckBox::toggled, this, [this, k] { chkMarker_Click(k); });
    }
    const std::array<QString, 2> captions{QStringLiteral("&Un-Check All"), QStringLiteral("&Check All")};
    for (int i = 0; i < 2; ++i) {
        cmdCheck[At(i)] = Named(new QPushButton(captions[At(i)]), ElementName("cmdCheck", i));
        connect(cmdCheck[At(i)], &QPushButton::clicked, this, [this, i] { cmdCheck_Click(i); });
    }
    cmdSave = Named(new QPushButton(QStringLiteral("&Save This Setting")), QStringLiteral("cmdSave"));
    cmdSave->setToolTip(QStringLiteral("Keep this choice for the next start"));
    cmdExit = Named(new QPushButton(QStringLiteral("E&xit")), QStringLiteral("cmdExit"));
    connect(cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
    new QShortcut(QKeySequence::Cancel, this, [this] { close(); });
}

void frmMarkers::layOut() {
    auto* boxes = new QGridLayout;
    boxes->setHorizontalSpacing(Pixels(150));
    boxes->setVerticalSpacing(0);
    for (int k = 0; k < CategoryCount; ++k) boxes->addWidget(chkMarker[At(k)], k % BoxRows, k / BoxRows);
    for (int row = 0; row < BoxRows; ++row) boxes->setRowMinimumHeight(row, Pixels(300));
    boxes->setColumnStretch(1, 1);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : cmdCheck) buttons->addWidget(button);
    buttons->addSpacing(20);
    buttons->addStretch();
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdExit);
    auto* all = new QVBoxLayout(this);
    all->setSpacing(12);
    all->addWidget(lblMain);
    all->addLayout(boxes);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void frmMarkers::showBoxes() {
    for (std::size_t k = 0; k < CategoryCount; ++k) {
        const QSignalBlocker quiet(chkMarker[k]);
        const QString caption = FromText(MarkerCaption[k]);
        // A long caption loses its end here: it must not push the second column and the buttons off the screen.
        const int room = fontMetrics().averageCharWidth() * LongestCaption;
        QString shown = fontMetrics().elidedText(caption, Qt::ElideRight, room);
        chkMarker[k]->setText(shown.replace(QLatin1Char('&'), QStringLiteral("&&")));
        chkMarker[k]->setAccessibleName(caption);
        chkMarker[k]->setIcon(Swatch(MarkerColor[k], this));
        chkMarker[k]->setChecked(!MarkerHidden[k]);
    }
}

void frmMarkers::chkMarker_Click(int index) { ShowCategory(index, chkMarker[At(index)]->isChecked()); }

void frmMarkers::cmdCheck_Click(int index) { index == 0 ? HideAllMarks() : ShowAllMarks(); }

void frmMarkers::cmdSave_Click() { SaveDisplaySetting(); }

void frmMarkers::cmdExit_Click() { close(); }

void frmMarkers::unload() { ShowCategoriesInBoxes = {}; }
