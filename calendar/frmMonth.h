// The one-month view: the month's grid, and beside it the sheet of day labels.
#pragma once

#include <QLabel>
#include <QScrollBar>

#include "calendar/frmMonthsWindow.h"

class frmMonth : public MonthsWindow {
    Q_OBJECT

  public:
    frmMonth();
    ~frmMonth() override;

    /// In template mode the navigation and the left panel are hidden.
    void setTemplateMode(bool templateMode);
    MonthPicture* picMonth() const { return picture(0); }

  protected:
    void layOut() override;
    void goNext() override;
    void goPrevious() override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void buildLeftPanel();
    void layOutLeftPanel();
    void VScroll1_Change(int value);
    bool labelsAreSeen();
    void showLabels();

    QWidget* picLeft;
    QWidget* picTTT;
    QScrollBar* VScroll1;
    std::array<QLabel*, 36> lblTTT{};
    bool templateMode_ = false;
    bool leftPanelVisible_ = false;
    bool labelsMissed_ = false;  // the month was drawn while there was no room for its labels
};
