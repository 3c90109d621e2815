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

    /// Asks about terms that were typed and not saved.
    bool queryUnload() override;

  private:
    void cmdSave_Click();
    bool save();
    void cmdClear_Click();

    QString saved_;  // what was typed when it was saved last
};
