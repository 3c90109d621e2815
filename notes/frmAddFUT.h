// The window in which terms are added to the current list.
#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "forms/qt/window.h"

class frmAddFUT : public Window {
    Q_OBJECT

  public:
    frmAddFUT();

    QLabel* lblAddFUT;
    QPlainTextEdit* txtAddFUT;  // several lines are several terms
    QPushButton* cmdSave;
    QPushButton* cmdClear;
    QPushButton* cmdExit;

  private:
    void cmdSave_Click();
    void cmdClear_Click();
};
