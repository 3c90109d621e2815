// Hover texts of marked days.
#include "marks/modHoverText.h"

#include <algorithm>
#include <string>

#include "base/dialogs.h"
#include "calendar/modCalendar.h"
#include "marks/modMarks.h"
#include "shell/modErrors.h"

namespace {
/// Asks for the day's hover text. A mark is one line of its file: pasted line breaks become blanks, as the box shows.
std::string AskForHoverText(const std::string& present) {
    std::string text =
        AskForText("You may input the Hover Text in the box provided or click Enter or Escape to ignore.",
                   "Optional Hover Text for " + FormatDate(SelectedDate, "mmm dd, yyyy"), present);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return text;
}
}  // namespace

void AttachHoverText() {
    Reporting("mnuOptDateAttachHoverText_Click", [] {
        const auto slot = SlotOfSelectedDay();
        if (!slot) return;
        const Cell cell = CellOf(SelectedDate);
        if (!Marks[*slot].flag[cell]) {
            ShowMessage("A hover text belongs to a mark. Mark the date first.");
            return;
        }
        const std::string text = AskForHoverText(Marks[*slot].hoverText[cell]);
        if (text.empty()) return;
        Marks[*slot].hoverText[cell] = text;
        SaveAndReadMarks(*slot);
    });
}
