// The pictures of icons on the screen.
#include "forms/qt/iconPictures.h"

#include <QBuffer>
#include <QGridLayout>
#include <QHash>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSet>
#include <algorithm>

#include "base/errors.h"
#include "forms/qt/window.h"
#include "marks/modIcons.h"

std::vector<QImage> ReadPictures(const Path& file) {
    const std::string bytes = ReadWholeFile(file);
    QByteArray data(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    std::vector<QImage> pictures;
    do {
        const QImage picture = reader.read();
        if (!picture.isNull()) pictures.push_back(picture.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    } while (reader.jumpToNextImage());
    if (pictures.empty()) throw Error(PathFileAccess);
    return pictures;
}

const QImage& LargestPicture(const std::vector<QImage>& pictures) {
    return *std::max_element(pictures.begin(), pictures.end(),
                             [](const QImage& a, const QImage& b) { return a.width() < b.width(); });
}

QImage PictureOfSide(const std::vector<QImage>& pictures, int side) {
    for (const QImage& picture : pictures)
        if (picture.width() == side && picture.height() == side) return picture;
    return LargestPicture(pictures).scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

namespace {
struct Library {
    Path folder;  // the data folder whose pictures these are
    QHash<int, std::vector<QImage>> pictures;
    QHash<std::pair<int, int>, QPixmap> drawn;  // by picture and side in device pixels
    QSet<int> failed;                           // not tried again while painting
};

Library& KnownPictures() {
    static Library library;
    if (library.folder != DataFolder()) library = {DataFolder(), {}, {}, {}};
    return library;
}

QPixmap Placeholder(int side) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QPen(Qt::gray, std::max(1, side / 16)));
    const QRect box = pixmap.rect().adjusted(side / 8, side / 8, -side / 8 - 1, -side / 8 - 1);
    painter.drawRect(box);
    painter.drawLine(box.topLeft(), box.bottomRight());
    painter.drawLine(box.bottomLeft(), box.topRight());
    return pixmap;
}
}  // namespace

void LoadIconPicture(int picture) {
    Library& library = KnownPictures();
    if (library.pictures.contains(picture)) return;
    library.failed.insert(picture);
    library.pictures.insert(picture, ReadPictures(PictureFile(picture)));
    library.failed.remove(picture);
}

namespace {
QPixmap DrawnPicture(int picture, int side) {
    Library& library = KnownPictures();
    if (library.failed.contains(picture)) return Placeholder(side);
    try {
        LoadIconPicture(picture);
        return QPixmap::fromImage(PictureOfSide(library.pictures[picture], side));
    } catch (const Error&) {
        return Placeholder(side);
    }
}
}  // namespace

QPixmap IconPixmap(int picture, int side, double pixelRatio) {
    const int pixels = qRound(side * pixelRatio);
    QPixmap pixmap = KnownPictures().drawn.value({picture, pixels});
    if (pixmap.isNull()) {
        pixmap = DrawnPicture(picture, pixels);
        if (!KnownPictures().failed.contains(picture)) KnownPictures().drawn.insert({picture, pixels}, pixmap);
    }
    pixmap.setDevicePixelRatio(pixelRatio);
    return pixmap;
}

// -- One picture ----------------------------------------------------------------------------------------------------

IconImage::IconImage(int side, QWidget* parent) : QWidget(parent), side_(side) { resize(side, side); }

void IconImage::setPicture(int picture) {
    if (picture_ == picture) return;
    picture_ = picture;
    update();
}

void IconImage::setChosen(bool chosen) {
    if (chosen_ == chosen) return;
    chosen_ = chosen;
    update();
}

void IconImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (chosen_) {
        painter.setRenderHint(QPainter::Antialiasing);
        QColor fill = palette().color(QPalette::Highlight);
        painter.setPen(fill);
        fill.setAlpha(70);
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
    if (picture_ >= 0) painter.drawPixmap((width() - side_) / 2, (height() - side_) / 2, pixmap());
}

void IconImage::mousePressEvent(QMouseEvent* event) { Q_EMIT mouseDown(event); }
void IconImage::mouseMoveEvent(QMouseEvent* event) { Q_EMIT mouseMove(event); }
void IconImage::mouseReleaseEvent(QMouseEvent* event) { Q_EMIT mouseUp(event); }
void IconImage::mouseDoubleClickEvent(QMouseEvent*) {
}  // a double click on an icon does nothing, nor on what is under it

// -- Many -----------------------------------------------------------------------------------------------------------

IconGrid::IconGrid(int count, int columns, QWidget* parent) : QWidget(parent), columns_(columns) {
    constexpr int Side = 24;
    constexpr int Cell = 34;
    auto* grid = new QGridLayout(this);
    grid->setSpacing(0);
    grid->setContentsMargins(2, 2, 2, 2);
    for (int i = 0; i < count; ++i) {
        auto* image = Named(new IconImage(Side, this), ElementName("imgIcon", i));
        image->setFixedSize(Cell, Cell);
        grid->addWidget(image, i / columns, i % columns);
        images_.push_back(image);
        connect(image, &IconImage::mouseDown, this, [this, i](QMouseEvent* event) { Q_EMIT mouseDown(i, event); });
        connect(image, &IconImage::mouseMove, this, [this, i](QMouseEvent* event) { Q_EMIT mouseMove(i, event); });
        connect(image, &IconImage::mouseUp, this, [this, i](QMouseEvent* event) { Q_EMIT mouseUp(i, event); });
    }
    setFocusPolicy(Qt::StrongFocus);
}

void IconGrid::setCurrent(int index) {
    images_[static_cast<std::size_t>(current_)]->setChosen(false);
    current_ = std::clamp(index, 0, count() - 1);
    frameCurrent();
}

void IconGrid::frameCurrent() { images_[static_cast<std::size_t>(current_)]->setChosen(true); }

void IconGrid::keyPressEvent(QKeyEvent* event) {
    const QHash<int, int> steps{{Qt::Key_Left, -1},       {Qt::Key_Right, 1},       {Qt::Key_Up, -columns_},
                                {Qt::Key_Down, columns_}, {Qt::Key_Home, -count()}, {Qt::Key_End, count()}};
    const int step = steps.value(event->key());
    if (step != 0) {
        const bool inside = std::abs(step) != columns_ || (current_ + step >= 0 && current_ + step < count());
        if (inside) setCurrent(current_ + step);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
        Q_EMIT chosen(current_);
    } else if (event->key() == Qt::Key_Menu) {
        Q_EMIT menuAsked(current_);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void IconGrid::focusInEvent(QFocusEvent* event) {
    // Who comes by keyboard sees where he is; the mouse needs no frame.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) frameCurrent();
}
