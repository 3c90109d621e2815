// The window of the preferences of frequently used terms.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "forms/qt/window.h"

class frmPref : public Window {
    Q_OBJECT

  public:
    frmPref();

    std::array<QLabel*, 2> lblAutoStartPos{};
    QLineEdit* txtStartPos;
    QCheckBox* chkACEnable;
    QCheckBox* chkShowFUT;
    QCheckBox* chkMinimizeFUT;
    QPushButton* cmdSave;
    QPushButton* cmdExit;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeControls();
    void layOut();
    void showPreferences();

    void txtStartPos_Change();
    void cmdSave_Click();
    void cmdExit_Click();

    int startPosition_ = 0;  // suggestions need more typed characters than this
};
