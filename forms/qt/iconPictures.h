// The pictures of icons on the screen: read once from the library, drawn sharp at any size and scaling; the widget that
// shows one, and the grid of many that the palette and the library are.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <vector>

#include "base/files.h"

/// Every picture in the file; an .ico file holds one for each of its sizes. Throws Error 53 if there is no file, 75 if
/// it is no picture.
std::vector<QImage> ReadPictures(const Path& file);

const QImage& LargestPicture(const std::vector<QImage>& pictures);

/// The picture for a place `side` device pixels wide: the one of exactly that size, or the largest one scaled.
QImage PictureOfSide(const std::vector<QImage>& pictures, int side);

/// Reads a library picture unless it is known already. Throws Error 53 or 75.
void LoadIconPicture(int picture);

/// A library picture `side` logical pixels wide, sharp at `pixelRatio`; a crossed box where it could not be read.
QPixmap IconPixmap(int picture, int side, double pixelRatio);

/// Shows one picture of the library in its middle.
class IconImage : public QWidget {
    Q_OBJECT

  public:
    /// `side`: the picture's width and height in logical pixels.
    explicit IconImage(int side, QWidget* parent);
    int picture() const { return picture_; }
    /// -1 for none.
    void setPicture(int picture);
    /// Frames the picture as the chosen one.
    void setChosen(bool chosen);
    QPixmap pixmap() const { return IconPixmap(picture_, side_, devicePixelRatioF()); }
    QSize sizeHint() const override { return {side_, side_}; }

  Q_SIGNALS:
    void mouseDown(QMouseEvent* event);
    void mouseMove(QMouseEvent* event);
    void mouseUp(QMouseEvent* event);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    int side_;
    int picture_ = -1;
    bool chosen_ = false;
};

/// A grid of pictures named imgIcon(0), imgIcon(1), ... that the arrow keys walk through.
class IconGrid : public QWidget {
    Q_OBJECT

  public:
    IconGrid(int count, int columns, QWidget* parent);
    IconImage* operator[](int index) const { return images_.at(static_cast<std::size_t>(index)); }
    int count() const { return static_cast<int>(images_.size()); }
    int current() const { return current_; }
    void setCurrent(int index);

  Q_SIGNALS:
    void mouseDown(int index, QMouseEvent* event);
    void mouseMove(int index, QMouseEvent* event);
    void mouseUp(int index, QMouseEvent* event);
    /// Enter or the space bar.
    void chosen(int index);
    /// The menu key.
    void menuAsked(int index);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void frameCurrent();

    std::vector<IconImage*> images_;
    int columns_;
    int current_ = 0;
};
