// The icons on the month's picture, picIcon: dragged between days, removed by their menu; and the drop of icons.
#pragma once

#include <QPoint>
#include <QWidget>

class PictureBox;
class QDropEvent;
class QMouseEvent;

/// Drags an icon's picture until the button is let go. Where no day took it, what was dragged stays where it was.
void DragIcon(QWidget* source, int picture);

/// True if the pointer has gone far enough from where the button went down to mean a drag.
bool MeansDrag(const QMouseEvent* event, QPoint pressedAt);

/// One sheet over the month's picture that shows all its icons: a control for each of 124 takes longer to put up than
/// the month takes to draw. Where no icon is, the month itself gets the mouse.
class PlacedIcons : public QWidget {
    Q_OBJECT

  public:
    /// `picMonth` carries the icons and takes their drops; it owns this sheet.
    explicit PlacedIcons(PictureBox* picMonth);
    ~PlacedIcons() override;

    /// The icon at a point of the picture, the uppermost; -1 if there is none.
    int iconAt(QPoint point) const;
    /// Where the icon of IconPool shows, in the picture's pixels.
    QRect placeOf(int icon) const;

  Q_SIGNALS:
    /// The day of an icon was selected.
    void selected();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void showIcons();
    bool showToolTip(class QHelpEvent* event);
    void picIcon_MouseDown(int index, QMouseEvent* event);
    void picMonth_DragDrop(QDropEvent* event);

    PictureBox* picMonth;
    int armed_ = -1;  // the icon on which the left button is down
    QPoint pressedAt_;
};
