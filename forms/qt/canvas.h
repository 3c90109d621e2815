// The canvas on the screen: a picture in memory, and the box that shows it.
#pragma once

#include <QFont>
#include <QImage>
#include <QWidget>
#include <memory>

#include "forms/canvas.h"

QColor FromColor(Color color);

/// The toolkit's font of a canvas font. Names that are not installed get a face with Arial's metrics.
QFont FromFont(const Font& font);

/// A canvas that draws into a picture, crisp at the screen's scaling.
class PictureCanvas : public Canvas {
  public:
    /// Makes the picture `size` logical pixels large and white, unless it is that large already. The scale stays.
    /// `zoom` enlarges all fonts. True if the picture was made anew.
    bool resize(QSize size, double pixelRatio, double zoom = 1);
    const QImage& image() const { return image_; }

    void setScale(double width, double height) override;
    double scaleWidth() const override { return width_; }
    double scaleHeight() const override { return height_; }
    void clear() override;
    void line(double x1, double y1, double x2, double y2, Color color) override;
    void box(double x1, double y1, double x2, double y2, Color color) override;
    void fillBox(double x1, double y1, double x2, double y2, Color color) override;
    void text(double x, double y, std::string_view text, const Font& font, Color color) override;
    double textWidth(std::string_view text, const Font& font) override;
    double textHeight(const Font& font) override;
    void picture(double x, double y, double width, double height, const Path& file) override;
    void newPage() override {}
    void end() override {}

    /// The part changed since the last call, in logical pixels.
    QRect takeChanged();

  private:
    double toX(double x) const { return x * image_.width() / width_; }
    double toY(double y) const { return y * image_.height() / height_; }
    QRect deviceRect(double x1, double y1, double x2, double y2) const;
    void changed(const QRect& device);
    void fillDevice(const QRect& device, Color color);

    QImage image_;
    Font zoomed(const Font& font) const;

    double ratio_ = 1;
    double zoom_ = 1;
    double width_ = 1;
    double height_ = 1;
    QRect changed_;
};

/// A box that shows a picture canvas.
class PictureBox : public QWidget {
    Q_OBJECT

  public:
    explicit PictureBox(QWidget* parent = nullptr);
    PictureCanvas& canvas() { return canvas_; }
    /// Shows what was drawn since the last call.
    void refresh();
    /// The point of the box in the canvas's scale.
    QPointF toScale(QPointF point) const;
    /// The rectangle of the canvas's scale in the box.
    QRect fromScale(const QRectF& rect) const;
    /// Gives the picture the box's size, without waiting for the box to be shown. The fonts are drawn `zoom` times as
    /// large as at 100 %.
    void fit(double zoom);
    /// Frames a rectangle of the canvas's scale, above the picture; an empty one frames nothing.
    void setFrame(const QRectF& rect);

  Q_SIGNALS:
    /// The picture was made anew (size or scaling changed): it is white and must be drawn again.
    void renewed();
    void mouseDown(QMouseEvent* event);
    void mouseMove(QMouseEvent* event);
    void mouseUp(QMouseEvent* event);
    void doubleClick(QMouseEvent* event);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { Q_EMIT mouseDown(event); }
    void mouseMoveEvent(QMouseEvent* event) override { Q_EMIT mouseMove(event); }
    void mouseReleaseEvent(QMouseEvent* event) override { Q_EMIT mouseUp(event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { Q_EMIT doubleClick(event); }

  private:
    PictureCanvas canvas_;
    double zoom_ = 1;
    QRectF frame_;
};
