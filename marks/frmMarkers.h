// The window that chooses which marker categories are displayed.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "forms/qt/window.h"
#include "marks/modCategories.h"

class frmMarkers : public Window {
    Q_OBJECT

  public:
    frmMarkers();

    QLabel* lblMain;
    std::array<QCheckBox*, CategoryCount> chkMarker{};
    std::array<QPushButton*, 2> cmdCheck{};
    QPushButton* cmdSave;
    QPushButton* cmdExit;

  protected:
    void unload() override;

  private:
    void makeControls();
    void layOut();
    void showBoxes();

    void chkMarker_Click(int index);
    void cmdCheck_Click(int index);
    void cmdSave_Click();
    void cmdExit_Click();
};
