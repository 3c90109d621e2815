// The window in which the to-do list is edited, reordered, saved and printed.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "forms/qt/menus.h"
#include "forms/qt/pictureButton.h"
#include "forms/qt/window.h"
#include "notes/modToDo.h"

class frmToDo : public Window {
    Q_OBJECT

  public:
    frmToDo();

    QLabel* lblTop;
    std::array<QLabel*, ToDoRows> lbl{};
    std::array<PictureButton*, ToDoRows> imgChkBox{};  // the property "tag" holds "True" or "False"
    std::array<QLineEdit*, ToDoRows> txt{};
    std::array<QPushButton*, ToDoRows> cmdDelete{};

    QAction* item(const QString& name) const { return menus_[name]; }
    /// Fills the rows from the tables.
    void showRows();
    bool queryUnload() override;

  protected:
    void unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildMenus();
    void makeRow(int row);
    void layOut();
    void showMark(int row);
    void showBackground(int row);
    void shiftBoxes(int by);
    bool save();
    ToDoSheet sheet() const;
    ToDoPlace placeOf(const QWidget* control) const;

    void imgChkBox_Click(int row);
    void txt_Change(int row);
    void cmdDelete_Click(int row);
    bool txt_KeyDown(int row, int key);
    void mnuFilePrint_Click();
    void mnuOptMoveUp_Click();
    void mnuOptMoveDown_Click();

    Menus menus_;
};

/// Reads the list and opens the window on it. A window that is open already comes to the front with its edits.
void OpenToDoList();
