// The pictures of the program: drawn from lines for any size and scaling, in the colours of the palette at hand.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QWidget>

class QPalette;

enum class Picture {
    Month,  // the three view buttons
    SixMonths,
    Year,
    Advance,  // the two option buttons
    OpenNotes,
    NoAlerts,  // the indicators
    Alerts,
    NoBirthdays,
    Birthdays,
    Planner,
    Notes,
    Help,
    Checked,  // the boxes of the to-do list
    Unchecked,
};

/// The looks a picture can take. `Exists` says that there is something behind it: a note, say.
enum class Look { Normal, Hover, Pressed, Exists, Disabled };

/// The picture in a box of `size` logical pixels, sharp at `pixelRatio` device pixels to one. On a light or dark
/// palette alike; an empty size gives a null pixmap.
QPixmap DrawPicture(Picture picture, Look look, QSize size, double pixelRatio, const QPalette& palette);

/// The colour that stands out, in the shade that reads on the palette's windows.
QColor AccentColor(const QPalette& palette);

/// The program's own icon, in the sizes from 16 to 128 pixels.
QIcon ProgramIcon();

/// Shows one picture and follows the palette and the screen's scaling.
class PictureLabel : public QWidget {
    Q_OBJECT

  public:
    explicit PictureLabel(Picture picture, QWidget* parent = nullptr);
    Picture picture() const { return picture_; }
    void setPicture(Picture picture);
    QSize sizeHint() const override { return {24, 24}; }
    QSize minimumSizeHint() const override { return {16, 16}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Picture picture_;
};
