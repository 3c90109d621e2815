// The help window: the titles, the chosen topic's text, and a search through all of them.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <array>

#include "forms/qt/menus.h"
#include "forms/qt/window.h"
#include "notes/modHelp.h"

class frmHelp : public Window {
    Q_OBJECT

  public:
    frmHelp();

    QGroupBox* framTopics;
    QListWidget* lstHelp;
    QGroupBox* framDesc;
    QPlainTextEdit* txtHelp;
    QGroupBox* framSearch;
    QLabel* lblSearch;
    QLineEdit* txtSearch;
    std::array<QPushButton*, 2> cmdSearch{};  // "Find Now", "Find Again"

    QAction* item(const QString& name) const { return menus_[name]; }
    /// Fills the list anew and shows the topic that the main window's panel shows.
    void showTopics();

  private:
    void layOut();
    void lstHelp_Click(int topic);
    void cmdSearch_Click(int index);
    void mnuHelp_Click();
    void showHit(const HelpHit& hit, std::size_t length);

    Menus menus_;
};

/// Opens the help window on the topic of the main window's panel.
void OpenHelp();
