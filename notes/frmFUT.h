// The window of frequently used terms: the current list, its commands, and the choice among lists.
#pragma once

#include <QPushButton>
#include <array>

#include "forms/qt/lists.h"
#include "forms/qt/menus.h"
#include "forms/qt/window.h"

/// The terms: one can be dragged into a note, or put there by a key.
class TermsList : public ListBox {
    Q_OBJECT

  public:
    TermsList();

  Q_SIGNALS:
    /// Left arrow or Insert: the selected term is wanted in the note.
    void insertPressed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
};

class frmFUT : public Window {
    Q_OBJECT

  public:
    frmFUT();
    ~frmFUT() override;

    TermsList* lstFUT;
    QListWidget* lstMoreFUT;
    QWidget* picOpt;
    std::array<QPushButton*, 4> cmdOpt{};   // add, edit, switch completion, remove
    std::array<QPushButton*, 3> cmdCase{};  // abc, Abc, ABC

    QAction* item(const QString& name) const { return menus_[name]; }

    /// Shows the tables: the list's name, its terms, or the files to choose from.
    void showTerms();
    /// Opens where it stood last, or in the middle of a small screen, above the others.
    void place();

  protected:
    void unload() override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeControls();
    void buildMenus();
    void layOut();
    void rememberPlace();
    int smallestHeight() const;
    void tellTooSmall();
    std::vector<std::string> selectedTerms() const;

    void lstFUT_InsertTerm();
    void lstMoreFUT_Choose();
    void cmdOpt_Click(int index);
    void mnuFileNewFUT_Click();
    void mnuWindowSavePosition_Click();

    Menus menus_;
    bool telling_ = false;  // the message about the size is on the screen
};

/// Opens the window, minimised where the preferences say so; one that is open comes back to its normal state.
/// `centred`: in the middle of the screen from left to right.
void OpenTermsWindow(bool centred = false);
void CloseTermsWindow();
