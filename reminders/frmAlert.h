// The alert manager's window.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "base/dates.h"
#include "forms/qt/leaving.h"
#include "forms/qt/menus.h"
#include "forms/qt/window.h"
#include "reminders/modAlertManager.h"

class frmAlert : public Window {
    Q_OBJECT

  public:
    frmAlert();

    QLabel* lblMain;
    std::array<QLabel*, 2> lblStart{};
    QLineEdit* txtDate;
    QComboBox* cmbMonth;
    QComboBox* cmbDay;
    QComboBox* cmbYear;
    QGroupBox* framAlert;
    std::array<QRadioButton*, 6> optValue{};
    QLabel* Label1;
    QLineEdit* txtValue;
    QLabel* lblMessage;
    QPlainTextEdit* txtMessage;
    QLabel* lblList;
    std::array<QListWidget*, 3> lstAlerts{};  // 1 by date, 2 by message; element 0 is AlertMasterList
    std::array<QPushButton*, 2> cmdSave{};
    QPushButton* cmdDelete;
    Menus menus;

    /// Lists pending alerts only, or all; a new alert being typed stays.
    void view(bool pendingOnly);
    /// Begins a new alert on the date; a new one being typed only gets the date.
    void proposeNew(Date date);

    /// Asks about an alert that was typed and not saved.
    bool queryUnload() override { return mayLeaveEdit(); }

  protected:
    void unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeDate();
    void makePeriod();
    void makeMessageAndLists();
    void connectControls();
    void buildMenus();
    void layOut();
    QLayout* dateLayout();
    QLayout* periodLayout();
    void LoadComboBoxes();
    void showAll();
    void showLists();
    void showEdit();
    void showSelected();
    void showDate();
    void showPeriodChoice();
    AlertEdit typed() const;
    bool isEdited() const;
    bool mayLeaveEdit();
    bool save();
    void focusOn(AlertField field);
    void sortBy(int element);
    void select(int entry);
    void lstAlerts_Click(int entry);
    void dateChosen();
    void takeTypedBoxes();
    void txtDate_LostFocus();
    void optValue_Click(int index);
    void txtValue_LostFocus();
    void cmdSave_Click(int index);
    void cmdDelete_Click();
    void mnuFileNew_Click();
    void mnuEditFind_Click();
    void mnuOptDeleteOldAlerts_Click();

    AlertEdit shown_;  // what the controls held before anybody typed
    Leaving* dateLeft_;
    Leaving* periodLeft_;
};

/// Opens the window on the pending alerts, or on all. One that is open comes to the front and shows those that are
/// asked for.
void OpenAlertManager(bool pendingOnly);
/// Opens the window for a new alert on the date.
void OpenAlertManagerFor(Date date);
