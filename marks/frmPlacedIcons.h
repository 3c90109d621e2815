// The icons on the month's picture: the picture controls picIcon(0..123), dragged between days, and the drop of icons.
#pragma once

#include <QObject>
#include <QPoint>
#include <vector>

class IconImage;
struct PlacedIcon;
class PictureBox;
class QDropEvent;
class QMouseEvent;
class QWidget;

/// Drags an icon's picture until the button is let go. Where no day took it, what was dragged stays where it was.
void DragIcon(QWidget* source, int picture);

/// True if the pointer has gone far enough from where the button went down to mean a drag.
bool MeansDrag(const QMouseEvent* event, QPoint pressedAt);

class PlacedIcons : public QObject {
    Q_OBJECT

  public:
    /// `picMonth` carries the icons and takes their drops; it owns this object.
    explicit PlacedIcons(PictureBox* picMonth);
    ~PlacedIcons() override;
    /// Puts the controls as IconPool says.
    void show();

  Q_SIGNALS:
    /// The day of an icon was selected.
    void selected();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    IconImage* makeIcon(int index);
    void put(IconImage* icon, const PlacedIcon& placed) const;
    void picIcon_MouseDown(int index, QMouseEvent* event);
    void picIcon_MouseMove(int index, QMouseEvent* event);
    void picMonth_DragDrop(QDropEvent* event);

    PictureBox* picMonth;
    std::vector<IconImage*> picIcon;
    bool armed_ = false;  // the left button is down on an icon
    QPoint pressedAt_;
};
