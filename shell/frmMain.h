// The main window: menus, the strip of pickers and view buttons, the side panel, the bottom panels, and in the middle
// the calendar.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <array>

#include "calendar/frmMonthsWindow.h"
#include "forms/qt/menus.h"
#include "forms/qt/pictureButton.h"
#include "forms/qt/window.h"

class Picker;

class frmMain : public Window {
    Q_OBJECT

  public:
    frmMain();
    ~frmMain() override;

    /// The start-up sequence, once: the calendar, then the panels beside it.
    void startUp();
    /// Its first half: everything is read that the one-year view shows, and the view drawn.
    void showCalendar();
    /// Its second half: help, pending birthdays and alerts, the to-do list.
    void fillPanels();
    /// Maximised where the screen is at least 1024 x 768, 800 x 600 logical pixels otherwise.
    void sizeToScreen();

    QAction* item(const QString& name) const { return menus_[name]; }
    bool queryUnload() override;

    QWidget* picTop;
    QComboBox* cmbMonth;
    QComboBox* cmbDay;
    QComboBox* cmbYear;
    std::array<PictureButton*, 2> imgOpt{};
    std::array<PictureButton*, 3> imgCal{};
    QLabel* lblTemplate;
    QPushButton* cmdAlert;
    PictureButton* imgAlert;
    PictureButton* imgBDay;
    PictureLabel* imgNotes;
    std::array<QWidget*, 2> picBottom{};
    QLabel* lblDate;
    QLabel* lblHoliday;
    QLabel* lblMonth;
    QLabel* lblX;
    QLabel* lblY;
    QWidget* picRight;
    QListWidget* lstAlerts = nullptr;
    QLabel* lblAlertDate = nullptr;
    QListWidget* lstBirthdays = nullptr;
    QLabel* lblBirthdayDate = nullptr;

  Q_SIGNALS:
    /// The window has been painted for the first time.
    void firstPainted();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void unload() override;

  private:
    void buildMenus();
    void buildTopStrip();
    void addPicker(QComboBox*& box, const QString& name, const QString& spoken, Picker* picker);
    void buildIndicators(QWidget* strip);
    void buildRightPanel();
    QWidget* makeRightPanel();
    void buildBottomPanels();
    void layOutParts();
    void fillShellCalls();
    void fillReminderHooks();

    std::vector<Canvas*> openView(int view);
    void cmbYear_LostFocus();
    void lstAlerts_Click();
    void lstBirthdays_Click();
    void showAlertIndicator();
    void showBirthdayIndicator();
    /// The panels beside and below the calendar show only where it keeps its own size.
    void arrangePanels();

    Menus menus_;
    bool calendarShown_ = false;
    bool painted_ = false;             // since then
    QWidget* middle_;                  // where the calendar windows stand
    QPointer<MonthsWindow> calendar_;  // the one that is open
};

/// The main window's menu table.
std::vector<MenuItem> MainMenuTable();
