// A button that is a picture.
#include "forms/qt/pictureButton.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

PictureButton::PictureButton(Picture picture, const QString& tip, QWidget* parent)
    : QAbstractButton(parent), picture_(picture) {
    setToolTip(tip);
    setAccessibleName(tip);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureButton::setPicture(Picture picture) {
    picture_ = picture;
    update();
}

void PictureButton::setLatched(bool latched) {
    latched_ = latched;
    update();
}

void PictureButton::setHasContent(bool hasContent) {
    hasContent_ = hasContent;
    update();
}

Look PictureButton::look() const {
    if (!isEnabled()) return Look::Disabled;
    if (isDown() || latched_) return Look::Pressed;
    if (hasContent_) return Look::Exists;
    return underMouse() ? Look::Hover : Look::Normal;
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Look shown = look();
    const bool pressed = shown == Look::Pressed;
    if (pressed || (isEnabled() && underMouse())) {
        QColor plate = AccentColor(palette());
        plate.setAlphaF(pressed ? 0.20F : 0.10F);
        painter.setBrush(plate);
        painter.setPen(Qt::NoPen);
        painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 3, 3);
        plate.setAlphaF(pressed ? 0.80F : 0.35F);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(plate);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }
    const QRect room = rect().adjusted(2, 2, -2, -2);
    painter.drawPixmap(room.topLeft(), DrawPicture(picture_, shown, room.size(), devicePixelRatioF(), palette()));
    if (!hasFocus()) return;
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    frame.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

void PictureButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void PictureButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}
