// The notes editor: the note of one date, read, written, completed, searched and printed.
#pragma once

#include <QPushButton>

#include "forms/qt/menus.h"
#include "forms/qt/window.h"
#include "notes/frmNoteText.h"

class frmNotes : public Window {
    Q_OBJECT

  public:
    frmNotes();
    ~frmNotes() override;

    NoteTextBox* txtNotes;
    QPushButton* cmdFormat;

    QAction* item(const QString& name) const { return menus_[name]; }

    /// Puts a note into the editor and shows it, with the phrase that was searched selected.
    void showNote(const QString& caption, const std::string& text);
    /// Offers to search again while a search is going on.
    void showSearchState();
    /// Brings the keyboard back to the text.
    void focusText();

    bool queryUnload() override;

  protected:
    void unload() override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void buildMenus();
    void limitWidth();
    bool save();

    void txtNotes_Change();
    void txtNotes_DragDrop();
    void cmdFormat_Click();
    void mnuFilePrint_Click();
    void mnuEditSearchAgain_Click();

    Menus menus_;
    bool busy_ = false;  // asking or saving: the window may not close meanwhile
};

/// Fills the calls through which the notes and the save-changes prompt reach the editor.
void InstallNoteEditor();
