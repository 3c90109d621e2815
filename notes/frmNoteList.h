// The list of a year's notes: opened and deleted from here.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <array>

#include "forms/qt/window.h"

class frmNoteList : public Window {
    Q_OBJECT

  public:
    frmNoteList();

    std::array<QLabel*, 2> lbl{};
    QComboBox* cmbYear;
    QComboBox* cmbMonth;
    QPushButton* cmdLoad;
    QLabel* lblList;
    QListWidget* lst;
    QPushButton* cmdOpen;
    QPushButton* cmdDelete;
    QPushButton* cmdDeleteAll;

    /// Lists the dates of the chosen year and month. A year that is none is reported; the list then stays.
    void populateListBoxes();

  private:
    void layOut();
    void cmdOpen_Click();
    void cmdDelete_Click();
    void cmdDeleteAll_Click();
    void deleteNotes(const std::vector<std::string>& keys);

    int listedYear_ = 0;
};
