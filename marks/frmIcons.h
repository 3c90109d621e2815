// The palette: 96 icons to be dragged onto days.
#pragma once

#include <QPoint>

#include "forms/qt/window.h"

class IconGrid;
class QMouseEvent;

class frmIcons : public Window {
    Q_OBJECT

  public:
    frmIcons();
    /// Gives every icon its picture and, as its tooltip, its caption.
    void ReassignIconTags();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void unload() override;

  private:
    void imgIcon_MouseDown(int index, QMouseEvent* event);
    void imgIcon_MouseMove(int index, QMouseEvent* event);
    void placeOnSelectedDay(int index);
    /// In the main window's lower right corner, where it hides no day.
    void placeBesideTheMonth();

    IconGrid* imgIcon;
    bool armed_ = false;  // the left button is down on an icon
    QPoint pressedAt_;
};

/// Shows the palette in front of the other windows.
void ShowPaletteWindow();
/// The same, but only while the one-month view is shown.
void ShowPaletteForMonth();
