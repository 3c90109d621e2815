// What the calendar shows in the main window: its caption, its pickers, its labels, its menu items. The main window
// fills these calls; without one nothing is shown.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dates.h"
#include "calendar/modGrid.h"
#include "forms/canvas.h"

struct ShellCalls {
    /// Opens the window of a view (1, 6 or 12) where it is not open, closes those of the others, and returns the
    /// cleared canvases of its months in their order.
    std::function<std::vector<Canvas*>(int view)> openView;
    /// Shows what has been drawn; `view` is complete.
    std::function<void()> showDrawn;
    std::function<void(const std::string& caption)> setCaption;
    std::function<void(const char* item, bool enabled)> enableItem;
    std::function<void(Date date)> showInPickers;
    /// The date written into the pickers; throws Error 13 if it is none.
    std::function<Date()> dateOfPickers;
    std::function<void(const std::string& text)> showHolidayLabel;
    std::function<void(Cell cell)> showPosition;
    /// The button that opens notes shows whether the date under the pointer has one.
    std::function<void(bool hasNote)> showNoteButton;
    /// "Monthly View = ..."; hidden for "".
    std::function<void(const std::string& text)> showTemplateLabel;
    /// Which view button is held down: 1, 6, 12, or 0 for none.
    std::function<void(int view)> pressViewButton;
    /// The caption above a month's grid in the six-month and one-year views.
    std::function<void(int index, const std::string& caption)> captionMonth;
    /// Shows or hides the month's navigation buttons and left panel; both are hidden in template mode.
    std::function<void(bool templateMode)> layOutMonth;
    /// Opens the "Date Options" menu at a point of the screen, in its pixels.
    std::function<void(int x, int y)> popUpDateOptions;
};
extern ShellCalls Shell;

/// Calls through the table, doing nothing where nothing is filled in.
template <class Call, class... Arguments>
void Tell(const Call& call, Arguments&&... arguments) {
    if (call) call(std::forward<Arguments>(arguments)...);
}
