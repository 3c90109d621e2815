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
    /// Lays the view out in the window's size, without waiting for the window to be shown.
    void fit();
    /// Shows what was drawn, and the selection.
    void showDrawn();
    /// Names the month's picture, and the button that opens it if the view has one.
    void captionMonth(int index, const QString& caption);

  protected:
    /// Places what the view holds; `place` does it in twips.
    virtual void layOut() = 0;
    virtual void goNext() = 0;
    virtual void goPrevious() = 0;
    /// Puts a control at a place of the view's area, enlarged to the window.
    void place(QWidget* control, double left, double top, double width, double height) const;
    double zoom() const { return zoom_; }
    MonthPicture* picture(int index) const { return pictures_.at(static_cast<std::size_t>(index)); }
    /// Makes a button for each month that opens it: name(0), name(1), ...
    void buildMonthButtons(const char* name, const QString& caption = {});
    QPushButton* monthButton(int index) const { return monthButtons_.at(static_cast<std::size_t>(index)); }
    /// Puts the view's area in the middle of the window.
    void centreView();

    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    // With or without the focus the window looks the same: it is not painted anew.
    void focusInEvent(QFocusEvent*) override {}
    void focusOutEvent(QFocusEvent*) override {}
    void unload() override;

    QWidget* picMain;
    QWidget* picNav;
    QPushButton* cmdPrev;
    QPushButton* cmdNext;

  private:
    bool moveSelection(int key);
    MonthPicture* framed() const;
    void openDateMenu();
    void repaintLater();
    void repaintNow();
    void buildNavigation();

    int view_;
    double zoom_ = 1;
    bool renewing_ = false;
    std::vector<MonthPicture*> pictures_;
    std::vector<QPushButton*> monthButtons_;  // none in the one-month view
};
