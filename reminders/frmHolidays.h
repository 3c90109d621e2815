// The holiday manager's window.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "base/dates.h"
#include "forms/qt/leaving.h"
#include "forms/qt/menus.h"
#include "forms/qt/window.h"

class frmHolidays : public Window {
    Q_OBJECT

  public:
    frmHolidays();

    QLabel* lblYear;
    QComboBox* cmbYear;
    QLabel* lblList;
    QListWidget* lstHolidays;
    QLabel* Label1;
    QLineEdit* txtDate;
    QLabel* lblDesc;
    QLineEdit* txtDesc;
    QPushButton* cmdSave;
    QPushButton* cmdDelete;
    QPushButton* cmdAddNew;
    Menus menus;

    /// Proposes a new holiday on the date, in the list of its year.
    void proposeNew(Date date);

    /// Asks about a holiday that was typed and not saved.
    bool queryUnload() override { return mayLeaveEdit(); }

  protected:
    void unload() override;

  private:
    void makeControls();
    void buildMenus();
    void layOut();
    void PopulateComboList();
    void showList(int entry);
    void showLines(int entry);
    void selectLine(int entry);
    void showYear();
    void showEntry(int entry);
    void showEdit(const QString& date, const QString& description);
    bool isEdited() const;
    bool mayLeaveEdit();
    bool save();
    void focusOn(QLineEdit* box);
    void cmbYear_Click();
    void lstHolidays_Click(int entry);
    void cmdDelete_Click();
    void cmdAddNew_Click();
    void mnuFileNew_Click();
    void mnuFileSave_Click();

    QString shownDate_;  // what the boxes held before anybody typed
    QString shownDescription_;
};

/// Opens the window for a new holiday on the date.
void OpenHolidayManagerFor(Date date);
