// The search: the dates whose notes hold a phrase.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <array>

#include "forms/qt/window.h"

class frmSearch : public Window {
    Q_OBJECT

  public:
    frmSearch();
    ~frmSearch() override;

    QGroupBox* framTimePeriod;
    std::array<QLabel*, 2> lbl{};
    QComboBox* cmbYear;
    QComboBox* cmbMonth;
    QLabel* lblSearch;
    QComboBox* cmbPhrase;
    QPushButton* cmdSearch;
    QGroupBox* framOccurences;
    QListWidget* lstResults;
    QPushButton* cmdOpen;

  protected:
    void unload() override;

  private:
    void makeControls();
    void layOut();
    void cmdSearch_Click();
    void cmdOpen_Click();
    void showHistory(const QString& phrase);
    void search(const std::string& phrase);

    int listedYear_ = 0;
};
