// The date difference calculator.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <string_view>

#include "forms/qt/window.h"

class frmDateDiff : public Window {
    Q_OBJECT

  public:
    frmDateDiff();

    // Element 0 is the start, 1 the end.
    std::array<QComboBox*, 2> cmbMonth{};
    std::array<QComboBox*, 2> cmbDay{};
    std::array<QComboBox*, 2> cmbYear{};
    std::array<QLineEdit*, 2> txtInput{};
    std::array<QLabel*, 2> lblStart{};  // over the start's boxes, and over its text
    std::array<QLabel*, 2> lblEnd{};
    QLabel* Label1;
    QLabel* lblInterval;
    QLabel* Label2;
    QComboBox* cmbInterval;
    QPushButton* cmdDateDiff;
    QLineEdit* txtAnswer;

    /// Shows the current interval in both of its places.
    void showInterval();

  private:
    void makeGroup(int group);
    void layOut();
    void showToday(int group);
    void dateBoxes_Change(int group);
    void txtInput_LostFocus(int group);
    void cmbInterval_Click();
    void cmdDateDiff_Click();
};

/// Makes the named interval ("Years" .. "Seconds") the current one and shows the window.
void OpenDateDiff(std::string_view interval);
