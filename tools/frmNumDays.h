// The counter of one weekday's occurrences in a period.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>
#include <QTimer>
#include <array>

#include "forms/qt/window.h"
#include "tools/modNumDays.h"

class frmNumDays : public Window {
    Q_OBJECT

  public:
    frmNumDays();

    QLabel* Label1;
    QLineEdit* txtStart;
    QLabel* Label2;
    QLineEdit* txtEnd;
    QGroupBox* framDays;
    std::array<QRadioButton*, 7> optDay{};  // the property "tag" holds the weekday's name
    QPushButton* cmdGetDays;
    QListView* lstDays;  // over texts: 31,999 rows need no item objects
    QStringListModel* listed;
    QLabel* lblOccur;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeDays();
    void layOut();
    bool takeStart();
    bool takeEnd();
    void txtStart_Enter();
    void txtEnd_Enter();
    void CheckWhichDay();
    void clearResult();
    void cmdGetDays_Click();
    void showOccurrences(const Occurrences& found);

    // Run out when a date box has been left: see eventFilter.
    QTimer startLeft_;
    QTimer endLeft_;
};
