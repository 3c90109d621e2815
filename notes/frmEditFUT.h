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

    /// Shows the term that is to be changed, once another one that was changed and not saved has been asked about.
    void edit(const std::string& term);
    /// Asks about a change that was not saved.
    bool queryUnload() override;

  private:
    void cmdSave_Click();
    bool save();

    std::string term_;
    std::string file_;  // the list that it belongs to
    QString shown_;     // as the box showed it before anybody typed, or when it was saved last
};
