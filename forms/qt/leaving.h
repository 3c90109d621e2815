// Boxes whose content is looked at when they are left.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

/// Calls `check` after the box has lost the focus to another control of its window; not when the window loses it or a
/// menu opens. The click or key that left the box runs its course first: a message in the middle of a mouse press would
/// leave the pressed button down. Belongs to the box.
class Leaving : public QObject {
    Q_OBJECT

  public:
    Leaving(QWidget* box, std::function<void()> check);
    /// Forgets a look that is still to come: whoever reads the box now looks himself.
    void cancel() { due_.stop(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QTimer due_;
};
