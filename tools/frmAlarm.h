// The alarm clock.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <array>
#include <functional>

#include "forms/qt/menus.h"
#include "forms/qt/window.h"
#include "tools/modAlarm.h"

class frmAlarm : public Window {
    Q_OBJECT

  public:
    frmAlarm();

    QLabel* lblHour;
    std::array<QPushButton*, 12> cmdHour{};
    QLabel* lblMinutes;
    std::array<QPushButton*, 12> cmdMinute{};
    QLineEdit* txtTime;
    QPushButton* cmdAM;
    QPushButton* cmdPM;
    QPushButton* cmdStart;
    QPushButton* cmdExit;
    QLabel* lblAlarm;
    QTimer Timer1;  // compares the clock with the alarm time
    QTimer Timer2;  // beeps and flashes

    QAction* item(const QString& name) const { return menus_[name]; }
    void Timer1_Timer();
    void Timer2_Timer();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void buildMenus();
    void makeButtons();
    void connectControls();
    void layOut();
    void chooseHalf(QPushButton* pressed);
    void start();
    void reset();
    void enableChoice(bool enabled);

    void cmdHour_Click(QPushButton* hour);
    void cmdMinute_Click(QPushButton* minute);
    void cmdStart_Click();

    AlarmState alarm_;
    Menus menus_;
};

/// Opens the alarm clock above the other windows; one that is open already fills the screen.
void OpenAlarm();
