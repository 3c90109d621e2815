// What the three calendar windows share: their place in the main window, zooming to it, month pictures and keys.
#pragma once

#include <QBoxLayout>
#include <QPushButton>
#include <array>
#include <vector>

#include "calendar/frmMonthPicture.h"
#include "forms/qt/window.h"

/// The area that every view is laid out in, twips.
inline constexpr int ViewWidth = 11790;
inline constexpr int ViewHeight = 7500;

class MonthsWindow : public Window {
    Q_OBJECT

  public:
    MonthsWindow(const char* name, const QString& caption, int view, int months);

    /// The canvases of the months, in their order.
    std::vector<Canvas*> canvases();
    /// Shows what was drawn, and the selection.
    void showDrawn();
    /// The buttons that open the months, if the view has them.
    virtual void captionMonth(int, const QString&) {}

  protected:
    /// Places what the view holds; `place` does it in twips.
    virtual void layOut() = 0;
    virtual void goNext() = 0;
    virtual void goPrevious() = 0;
    /// Puts a control at a place of the view's area, enlarged to the window.
    void place(QWidget* control, double left, double top, double width, double height) const;
    double zoom() const { return zoom_; }
    MonthPicture* picture(int index) const { return pictures_.at(static_cast<std::size_t>(index)); }

    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void unload() override;

    QWidget* picMain;
    QWidget* picNav;
    QPushButton* cmdPrev;
    QPushButton* cmdNext;

  private:
    bool moveSelection(int key);
    void repaintLater();
    void repaintNow();
    void buildNavigation();

    int view_;
    double zoom_ = 1;
    bool renewing_ = false;
    std::vector<MonthPicture*> pictures_;
};
