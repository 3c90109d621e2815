// The birthday manager's window.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <array>
#include <string>
#include <vector>

#include "base/dates.h"
#include "forms/qt/leaving.h"
#include "forms/qt/menus.h"
#include "forms/qt/window.h"
#include "reminders/modBirthdayManager.h"

class frmBDay : public Window {
    Q_OBJECT

  public:
    frmBDay();

    QLabel* lblName;
    QLabel* lblBDay;
    std::array<QLineEdit*, 2> txt{};  // name, date
    QCheckBox* chkRememberAge;
    QLabel* lblAge;
    QGroupBox* framNotificationPeriod;
    std::array<QRadioButton*, 7> optNotify{};
    QLabel* lblNotifyMe;
    std::array<QListWidget*, 3> lstData{};  // 1 by month, 2 by name; element 0 is BirthdayMasterList
    QPushButton* cmdSave;
    QPushButton* cmdDelete;
    QPushButton* cmdClear;
    QPushButton* cmdSort;
    Menus menus;

    /// Proposes a new birthday on the date, without a year.
    void proposeNew(Date date);

    /// Asks about a birthday that was typed and not saved.
    bool queryUnload() override { return mayLeaveEdit(); }

  protected:
    void unload() override;

  private:
    void makeEdits();
    void makePeriods();
    void makeLists();
    void buildMenus();
    void layOut();
    QLayout* editLayout();
    QLayout* listLayout();
    void showLists();
    void showEdit(const BirthdayEdit& shown);
    void selectBirthday(int index);
    BirthdayEdit typed() const;
    bool isEdited() const;
    bool mayLeaveEdit();
    bool save();
    void showSelected();
    int visibleElement() const { return lstData[1]->isVisibleTo(this) ? 1 : 2; }
    QListWidget* visibleList() const { return lstData[static_cast<std::size_t>(visibleElement())]; }
    const std::vector<std::string>& visibleEntries() const;
    std::vector<std::string> selectedEntries() const;
    void lstData_Click(int element);
    void txt_LostFocus();
    void forgetMissingYear();
    void cmdDelete_Click();
    void cmdClear_Click();
    void cmdSort_Click();
    bool startNew();
    void view(bool pendingOnly);

    BirthdayEdit shown_;  // what the controls held before anybody typed
    Leaving* dateLeft_;
};

/// Opens the window for a new birthday on the date's month and day.
void OpenBirthdayManagerFor(Date date);
