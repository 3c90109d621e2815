// The window of the marker categories' captions and colours.
#include "marks/frmColors.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>
#include <optional>

#include "base/dialogs.h"
#include "calendar/modViews.h"
#include "forms/qt/canvas.h"
#include "forms/qt/text.h"

namespace {
constexpr int LabelRows = 7;
constexpr int PaletteColumns = 4;
constexpr int PatchPadding = 8;  // logical pixels, like all below
constexpr int Border = 3;

std::size_t At(int index) { return static_cast<std::size_t>(index); }

Color TextColorOn(Color color) { return LabelTextColor(color).value_or(color == 0 ? White : Black); }
/// How far an arrow key goes in a group of patches: `across` to the right, `down` to the next row. 0 for other keys.
int StepOf(int key, int across, int down) {
    switch (key) {
        case Qt::Key_Left:
            return -across;
        case Qt::Key_Right:
            return across;
        case Qt::Key_Up:
            return -down;
        case Qt::Key_Down:
            return down;
        default:
            return 0;
    }
}

/// The patch so many steps from the one watched, which stays where the group ends; nothing for one of another group.
template <class Patches>
std::optional<int> Target(const Patches& patches, const QObject* watched, int step) {
    const auto found = std::find(patches.begin(), patches.end(), watched);
    if (step == 0 || found == patches.end()) return std::nullopt;
    const int from = static_cast<int>(found - patches.begin());
    const int to = from + step;
    return to < 0 || to >= static_cast<int>(patches.size()) ? from : to;
}

/// Of a group the Tab key stops at one patch; the arrow keys reach the others.
template <class Patches>
void MakeTabStop(const Patches& patches, int index) {
    for (int i = 0; i < static_cast<int>(patches.size()); ++i)
        patches[At(i)]->setFocusPolicy(i == index ? Qt::StrongFocus : Qt::ClickFocus);
}

/// The text as a box of one line shows it: pasted line breaks are blanks.
QString OnOneLine(QString text) {
    return text.replace(QRegularExpression(QStringLiteral("[\\r\\n]+")), QStringLiteral(" "));
}
}  // namespace

// -- Patches ---------------------------------------------------------------------------------------------------------

ColorPatch::ColorPatch(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ColorPatch::setColors(Color back, Color text) {
    back_ = back;
    text_ = text;
    update();
}

void ColorPatch::setBorder(bool border) {
    border_ = border;
    update();
}

QSize ColorPatch::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.averageCharWidth() * (text().isEmpty() ? 5 : 24) + 2 * PatchPadding,
            metrics.height() + 2 * PatchPadding};
}

void ColorPatch::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void ColorPatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The border stands off the colour, so that it is seen whatever the two colours are.
    const QRectF outside = QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75);
    if (border_ || hasFocus() || isDown()) {
        const QColor color = palette().color(border_ ? QPalette::WindowText : QPalette::Highlight);
        painter.setPen(QPen(color, 1.5, hasFocus() && !border_ ? Qt::DotLine : Qt::SolidLine));
        painter.drawRoundedRect(outside, 4, 4);
    }
    const QRectF inside = QRectF(rect()).adjusted(Border, Border, -Border, -Border);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(FromColor(back_));
    painter.drawRoundedRect(inside.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(FromColor(text_));
    const QRect place = inside.toRect().adjusted(PatchPadding, 0, -PatchPadding, 0);
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
    if (!underMouse() || isDown()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
    painter.drawRoundedRect(inside.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

// -- The window ------------------------------------------------------------------------------------------------------

frmColors::frmColors() : Window("frmColors", QStringLiteral("Available Marker Colors")) {
    makeControls();
    layOut();
    lblMarker[0]->setFocus();
    OpenMarkerLabels();
    showLabels();
    ShowCategoriesInLabels = [window = QPointer(this)] {
        if (window) window->showLabels();
    };
}

void frmColors::makeControls() {
    lblMain = Named(new QLabel(QStringLiteral("Click on a category to select, then click on a color.")),
                    QStringLiteral("lblMain"));
    for (int k = 0; k < CategoryCount; ++k) {
        ColorPatch* label = lblMarker[At(k)] = Named(new ColorPatch, ElementName("lblMarker", k));
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        label->setToolTip(QStringLiteral("Click to Select"));
        label->setText(QStringLiteral(" "));
        label->installEventFilter(this);
        connect(label, &ColorPatch::clicked, this, [this, k] { lblMarker_Click(k); });
    }
    for (int i = 0; i < static_cast<int>(cmdColor.size()); ++i) {
        const QString name = QString::fromLatin1(PaletteName(i));
        ColorPatch* button = cmdColor[At(i)] = Named(new ColorPatch, ElementName("cmdColor", i), name);
        button->setColors(MarkerPalette[At(i)], Black);
        button->setToolTip(name);
        button->installEventFilter(this);
        connect(button, &ColorPatch::clicked, this, [this, i] { cmdColor_Click(i); });
    }
    MakeTabStop(lblMarker, 0);
    MakeTabStop(cmdColor, 0);
    lblCaption = Named(new QLabel(QStringLiteral("Category C&aption =")), QStringLiteral("lblCaption"));
    txtEdit = Named(new QLineEdit, QStringLiteral("txtEdit"), QStringLiteral("Category Caption"));
    txtEdit->setEnabled(false);
    lblCaption->setBuddy(txtEdit);
    connect(txtEdit, &QLineEdit::textChanged, this, [this] { txtEdit_Change(); });
    cmdSave = Named(new QPushButton(QStringLiteral("&Save Changes and Exit")), QStringLiteral("cmdSave"));
    cmdExit = Named(new QPushButton(QStringLiteral("E&xit Without Saving")), QStringLiteral("cmdExit"));
    connect(cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
    new QShortcut(QKeySequence::Cancel, this, [this] { close(); });
}

QLayout* frmColors::categoriesLayout() {
    auto* grid = new QGridLayout;
    grid->setSpacing(4);
    for (int k = 0; k < CategoryCount; ++k) grid->addWidget(lblMarker[At(k)], k % LabelRows, k / LabelRows);
    return grid;
}

QLayout* frmColors::paletteLayout() {
    auto* grid = new QGridLayout;
    grid->setSpacing(4);
    for (int i = 0; i < static_cast<int>(cmdColor.size()); ++i)
        grid->addWidget(cmdColor[At(i)], i / PaletteColumns, i % PaletteColumns);
    grid->setRowStretch(grid->rowCount(), 1);
    return grid;
}

void frmColors::layOut() {
    auto* bar = Named(new QMenuBar, QStringLiteral("MenuBar"), QStringLiteral("Menus"));
    menus_.build(bar, {Without("mnuEdit", "&Edit", ""), With(
                                                            "mnuEditCaption", "Change Category &Caption", "mnuEdit",
                                                            [this] { mnuEditCaption_Click(); }, Qt::Key_F2)});
    auto* columns = new QHBoxLayout;
    columns->setSpacing(20);
    columns->addLayout(categoriesLayout(), 3);
    columns->addLayout(paletteLayout(), 2);
    auto* caption = new QHBoxLayout;
    caption->addWidget(lblCaption);
    caption->addWidget(txtEdit, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdExit);
    auto* all = new QVBoxLayout(this);
    all->setMenuBar(bar);
    all->setSpacing(12);
    all->addWidget(lblMain);
    all->addLayout(columns);
    all->addLayout(caption);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void frmColors::showLabels() {
    for (std::size_t k = 0; k < CategoryCount; ++k) {
        // A label that has been edited keeps what was edited for as long as the file says nothing new about it.
        if (shown_[k] == MarkerLabels[k]) continue;
        shown_[k] = MarkerLabels[k];
        lblMarker[k]->setText(FromText(shown_[k].caption));
        lblMarker[k]->setAccessibleName(lblMarker[k]->text());
        lblMarker[k]->setColors(shown_[k].color, TextColorOn(shown_[k].color));
    }
}

void frmColors::selectLabel(int index) {
    current_ = index;
    for (int k = 0; k < CategoryCount; ++k) lblMarker[At(k)]->setBorder(k == index);
    MakeTabStop(lblMarker, index);
    const QSignalBlocker quiet(txtEdit);
    txtEdit->setText(lblMarker[At(index)]->text());
    txtEdit->setReadOnly(index == QuickMarksCategory);
    txtEdit->setEnabled(!IsFixedCaption(ToText(txtEdit->text())));
    txtEdit->selectAll();
}

bool frmColors::isEdited() const {
    for (std::size_t k = 0; k < CategoryCount; ++k) {
        if (lblMarker[k]->text() != FromText(shown_[k].caption) || lblMarker[k]->backColor() != shown_[k].color)
            return true;
    }
    return false;
}

/// The arrow keys walk over the labels, and select without leaving them for the caption box, and over the colours.
bool frmColors::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (const auto label = Target(lblMarker, watched, StepOf(key, LabelRows, 1))) {
        selectLabel(*label);
        lblMarker[At(*label)]->setFocus(Qt::OtherFocusReason);
        return true;
    }
    if (const auto color = Target(cmdColor, watched, StepOf(key, 1, PaletteColumns))) {
        MakeTabStop(cmdColor, *color);
        cmdColor[At(*color)]->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return false;
}

void frmColors::lblMarker_Click(int index) {
    selectLabel(index);
    txtEdit->setFocus();
}

void frmColors::txtEdit_Change() {
    if (current_ < 0) return;
    const QString caption = OnOneLine(txtEdit->text());
    txtEdit->setEnabled(!IsFixedCaption(ToText(caption)));
    lblMarker[At(current_)]->setText(caption);
    lblMarker[At(current_)]->setAccessibleName(caption);
}

void frmColors::cmdColor_Click(int index) {
    if (current_ < 0) return;
    const Color color = MarkerPalette[At(index)];
    lblMarker[At(current_)]->setColors(color, TextColorOn(color));
}

void frmColors::cmdSave_Click() {
    if (save()) close();
}

bool frmColors::save() {
    ByCategory<MarkerLabel> edited;
    for (int k = 0; k < CategoryCount; ++k) {
        const ColorPatch* label = lblMarker[At(k)];
        const auto caption = LineToSave(label->text());
        if (!caption) {
            lblMarker_Click(k);
            return false;
        }
        edited[At(k)] = {*caption, label->backColor(), TextColorOn(label->backColor())};
    }
    if (!SaveEditedLabels(edited)) return false;
    leaving_ = true;
    RedrawCalendar();
    return true;
}

void frmColors::cmdExit_Click() {
    leaving_ = true;
    close();
}

void frmColors::mnuEditCaption_Click() { lblMarker_Click(std::max(current_, 0)); }

bool frmColors::queryUnload() {
    return leaving_ || !isEdited() ||
           AskToSave("Do you want to save the changes to the captions and colors?", "Available Marker Colors",
                     [this] { return save(); });
}

void frmColors::unload() {
    ShowCategoriesInLabels = {};
    CloseMarkerLabels();
}
