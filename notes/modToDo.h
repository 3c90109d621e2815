// The to-do list: ten numbered items with a done mark each, their file "To Do.dat", their sheet on paper.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "forms/canvas.h"

inline constexpr int ToDoRows = 10;
inline constexpr std::size_t LongToDoText = 60;  // characters; a longer text is saved whole but turns its box red

template <class Value>
using ToDoColumn = std::array<Value, ToDoRows>;  // by row, 0..9, shown as 1..10

struct ToDoState {
    ToDoColumn<std::string> readTexts;    // as read, with their mark characters; without them after a save
    ToDoColumn<std::string> editedTexts;  // as they stand in the window
    ToDoColumn<bool> done{};              // as they stand in the window
    ToDoColumn<std::string> panelTexts;   // as the main window's panel shows them
    ToDoColumn<bool> panelDone{};
    bool changed = false;        // a text was edited since the last save or load
    bool loading = false;        // the window's rows are being filled: text changes are no edits
    bool openRequested = false;  // the next read also fills and shows the window
};
extern ToDoState ToDo;

inline bool& TaskListChanged = ToDo.changed;
inline bool& TaskListLoading = ToDo.loading;
inline bool& TaskListOpenRequested = ToDo.openRequested;

/// Reads "To Do.dat" into the panel's tables and, where TaskListOpenRequested is set, into the edited rows; then shows
/// the panel and the window through their hooks. A missing file is an empty list. Of a file of more than ten lines the
/// first ten are shown, and Error 9 is reported under the procedure's name.
void ReadToDoList();

/// Writes the ten edited rows and says "To Do List Saved.". False after a failure, which is reported; the file is then
/// as it was and TaskListChanged stays set.
bool SaveToDoList();

// -- Editing; row 0..9 ----------------------------------------------------------------------------------------------

/// The row's box holds another text now. Line breaks become blanks, since a row is one line of the file. Does nothing
/// while TaskListLoading.
void SetToDoText(int row, std::string_view text);
/// Inverts the row's done mark.
void ToggleToDoDone(int row);
/// Moves every row's text and mark to the row below (above), leaving the first (last) row empty and not done. Does
/// nothing, and returns false, unless the last (first) row's text is empty.
bool MoveToDoDown();
bool MoveToDoUp();
/// The window has gone: forgets the edited texts.
void ForgetToDoEdits();

// -- Printing -------------------------------------------------------------------------------------------------------

/// A control's place in the window, in twips.
struct ToDoPlace {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};
struct ToDoSheet {
    ToDoColumn<ToDoPlace> mark;
    ToDoColumn<ToDoPlace> number;
    ToDoColumn<ToDoPlace> text;
};

/// Prints the edited rows, each where the window has it. Says "Printer could not be found" where there is none; a
/// printer's failure is reported.
void PrintToDoList(const ToDoSheet& sheet);

// -- Hooks: filled by whoever shows the list ------------------------------------------------------------------------

/// Shows panelTexts and panelDone in the main window's panel.
extern std::function<void()> ShowToDo;
/// Fills the window's rows from editedTexts and done, and shows the window.
extern std::function<void()> ShowToDoWindow;
