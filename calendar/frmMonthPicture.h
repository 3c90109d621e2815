// One month's picture in a calendar window: follows the pointer, selects days, opens their menu and their note.
#pragma once

#include "calendar/modPaint.h"
#include "forms/qt/canvas.h"

class MonthPicture : public PictureBox {
    Q_OBJECT

  public:
    /// `index`: the month's place in the list of shown months.
    MonthPicture(QWidget* parent, int index);

    /// True if the selected date lies in this month.
    bool holdsSelection() const;
    /// Frames the selected cell if it lies in this month.
    void showSelection();
    /// Opens the "Date Options" menu of the selected date, which lies in this month, beside its number.
    void openMenuOfSelection();

  Q_SIGNALS:
    /// A day was selected, by pointer or key.
    void selected();

  protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    /// The month as it is listed; null while nothing is shown.
    const ShownMonth* shown() const;
    void showToolTip(class QHelpEvent* event);

    int index_;
    QPoint lastPoint_{-1, -1};
};
