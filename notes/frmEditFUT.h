// The window in which a term is changed.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "forms/qt/window.h"

class frmEditFUT : public Window {
    Q_OBJECT

  public:
    frmEditFUT();

    QLabel* lblEditFUT;
    QLineEdit* txtEditFUT;
    QPushButton* cmdSave;
    QPushButton* cmdExit;

    /// Shows the term that is to be changed.
    void edit(const std::string& term);

  private:
    void cmdSave_Click();

    std::string term_;
};
