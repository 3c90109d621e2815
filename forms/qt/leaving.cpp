// Boxes whose content is looked at when they are left.
#include "forms/qt/leaving.h"

#include <QFocusEvent>
#include <utility>

Leaving::Leaving(QWidget* box, std::function<void()> check) : QObject(box) {
    due_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, std::move(check));
    box->installEventFilter(this);
}

bool Leaving::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && static_cast<QWidget*>(watched)->isVisible()) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        const bool within =
            reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
        if (within) due_.start(0);
    }
    return QObject::eventFilter(watched, event);
}
