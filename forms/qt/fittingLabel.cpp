// A label that never asks for more room than there is.
#include "forms/qt/fittingLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "forms/qt/text.h"

FittingLabel::FittingLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
}

QSize FittingLabel::minimumSizeHint() const { return {0, QLabel::minimumSizeHint().height()}; }

QString FittingLabel::fitting() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool FittingLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || fitting() == text()) return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), TipOf(text()), this);
    return true;
}

void FittingLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), fitting(),
                          foregroundRole());
}
