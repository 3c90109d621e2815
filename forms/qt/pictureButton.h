// A button that is a picture: shows the pointer over it, a press, a latch, and whether there is something behind it.
#pragma once

#include <QAbstractButton>

#include "forms/qt/pictures.h"

/// Reached by Tab and pressed by the space bar like any button; a click leaves the focus where it is. Its tip is also
/// what assistive programs speak.
class PictureButton : public QAbstractButton {
    Q_OBJECT

  public:
    PictureButton(Picture picture, const QString& tip, QWidget* parent = nullptr);

    Picture picture() const { return picture_; }
    void setPicture(Picture picture);
    /// Keeps the pressed look, as the button of the view at hand does.
    void setLatched(bool latched);
    bool isLatched() const { return latched_; }
    void setHasContent(bool hasContent);
    bool hasContent() const { return hasContent_; }
    /// The look the button has now.
    Look look() const;

    QSize sizeHint() const override { return {30, 28}; }
    QSize minimumSizeHint() const override { return {22, 22}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    Picture picture_;
    bool latched_ = false;
    bool hasContent_ = false;
};
