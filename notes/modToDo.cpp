// The to-do list: reading, saving, moving and printing of its ten rows.
#include "notes/modToDo.h"

#include <algorithm>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/files.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"
#include "forms/printer.h"
#include "shell/modErrors.h"

ToDoState ToDo;
std::function<void()> ShowToDo;
std::function<void()> ShowToDoWindow;

namespace {
const ClearedAtStart ClearToDo([] { ToDo = {}; });

constexpr char DoneMark = '\xF3';
constexpr char OpenMark = '\xF5';
constexpr const char* FileName = "To Do.dat";

void Call(const std::function<void()>& hook) {
    if (hook) hook();
}

/// Takes the mark off a line and returns whether it says done. The line is not empty.
bool TakeMark(std::string& line) {
    const bool done = line.front() == DoneMark;
    line.erase(0, 1);
    return done;
}

/// Fills the read texts from the file. False if it has lines beyond the tenth.
bool ReadRows() {
    ToDo.readTexts = {};
    const Path path = DataPath(FileName);
    if (!FileExists(DataFolder(), FileName)) {
        ToDo.done = {};
        ToDo.panelDone = {};
        return true;
    }
    int lines = 0;
    bool knownMarks = true;
    ReadDataLines(path, [&](std::string_view line, int number) {
        lines = number;
        if (number > ToDoRows) return;
        ToDo.readTexts[static_cast<std::size_t>(number - 1)] = line;
        knownMarks = knownMarks && (line.empty() || line.front() == DoneMark || line.front() == OpenMark);
    });
    // The first character of a line is dropped, whatever it is; one that is no mark would be gone after a save.
    if (lines > ToDoRows || !knownMarks) MarkNotFullyRead(path);
    return lines <= ToDoRows;
}

void FillWindow() {
    TaskListLoading = true;
    for (std::size_t row = 0; row < ToDoRows; ++row) {
        std::string line = ToDo.readTexts[row];
        if (!line.empty()) ToDo.done[row] = TakeMark(line);
        ToDo.editedTexts[row] = std::move(line);
    }
    TaskListChanged = false;
    TaskListOpenRequested = false;
    TaskListLoading = false;
    Call(ShowToDoWindow);
}

void FillPanel() {
    for (std::size_t row = 0; row < ToDoRows; ++row) {
        std::string line = ToDo.readTexts[row];
        if (!line.empty()) ToDo.panelDone[row] = TakeMark(line);
        ToDo.panelTexts[row] = Trimmed(line).empty() ? std::string() : std::move(line);
    }
    Call(ShowToDo);
}
}  // namespace

void ReadToDoList() {
    Reporting("ReadToDoList", [] {
        const bool whole = ReadRows();
        FillPanel();
        if (TaskListOpenRequested) FillWindow();
        if (!whole) throw AtLine(Error(SubscriptOutOfRange), DataPath(FileName), ToDoRows + 1);
    });
}

bool SaveToDoList() {
    return Reporting("SaveToDoList", [] {
        std::string bytes;
        for (std::size_t row = 0; row < ToDoRows; ++row)
            bytes += (ToDo.done[row] ? DoneMark : OpenMark) + ToDo.editedTexts[row] + CrLf;
        const std::string told = SaveDataFile(DataPath(FileName), bytes);
        ToDo.readTexts = ToDo.editedTexts;
        TaskListChanged = false;
        ShowMessage("To Do List Saved." + (told.empty() ? told : CrLf + told));
    });
}

// -- Editing --------------------------------------------------------------------------------------------------------

void SetToDoText(int row, std::string_view text) {
    if (TaskListLoading) return;
    std::string line = Replaced(text, CrLf, " ");
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    ToDo.editedTexts.at(static_cast<std::size_t>(row)) = std::move(line);
    TaskListChanged = true;
}

void ToggleToDoDone(int row) {
    bool& done = ToDo.done.at(static_cast<std::size_t>(row));
    done = !done;
}

namespace {
/// Shifts the rows between the iterators' ends by one: what falls out at `last` must be empty, `first` is emptied.
template <class Texts, class Marks>
bool MoveRows(Texts first, Texts last, Marks firstMark, Marks lastMark) {
    if (!(last - 1)->empty()) return false;
    const bool texts = std::any_of(first, last, [](const std::string& text) { return !text.empty(); });
    std::rotate(first, last - 1, last);
    std::rotate(firstMark, lastMark - 1, lastMark);
    *firstMark = false;
    TaskListChanged = TaskListChanged || texts;
    return true;
}
}  // namespace

bool MoveToDoDown() {
    return MoveRows(ToDo.editedTexts.begin(), ToDo.editedTexts.end(), ToDo.done.begin(), ToDo.done.end());
}

bool MoveToDoUp() {
    return MoveRows(ToDo.editedTexts.rbegin(), ToDo.editedTexts.rend(), ToDo.done.rbegin(), ToDo.done.rend());
}

void ForgetToDoEdits() {
    ToDo.editedTexts = {};
    TaskListChanged = false;
}

// -- Printing -------------------------------------------------------------------------------------------------------

namespace {
constexpr double PaperWidth = 12240;  // twips
constexpr double PaperHeight = 15840;
constexpr double Margin = 720;
const Font TitleFont{"Arial", 14, true};
const Font RowFont{"Arial", 10};

/// The font for a text that must end before the right margin: smaller where it would not.
Font FittingFont(Canvas& page, std::string_view text, double left) {
    Font font = RowFont;
    const double room = PaperWidth - Margin - left;
    const double width = page.textWidth(text, font);
    if (width > room) font.points = std::max(4.0, font.points * room / width);
    return font;
}

void PrintCheckMark(Canvas& page, double left, double top, const ToDoPlace& place) {
    const auto x = [&](double share) { return left + place.width * share; };
    const auto y = [&](double share) { return top + place.height * share; };
    page.line(x(0.2), y(0.5), x(0.4), y(0.8), Black);
    page.line(x(0.4), y(0.8), x(0.8), y(0.2), Black);
}

/// Prints a text where its control is, halfway up the control as the control itself shows it.
void PrintInPlace(Canvas& page, const ToDoPlace& place, std::string_view text) {
    const double left = place.left + Margin;
    const Font font = FittingFont(page, text, left);
    page.text(left, place.top + Margin + (place.height - page.textHeight(font)) / 2, text, font, Black);
}

void PrintRow(Canvas& page, const ToDoSheet& sheet, std::size_t row) {
    const ToDoPlace& mark = sheet.mark[row];
    const double left = mark.left + Margin;
    const double top = mark.top + Margin;
    page.box(left, top, left + mark.width, top + mark.height, Black);
    if (ToDo.done[row]) PrintCheckMark(page, left, top, mark);
    PrintInPlace(page, sheet.number[row], std::to_string(row + 1));
    if (!ToDo.editedTexts[row].empty()) PrintInPlace(page, sheet.text[row], ToDo.editedTexts[row]);
}
}  // namespace

void PrintToDoList(const ToDoSheet& sheet) {
    if (!PrinterAvailable) {
        ShowMessage("Printer could not be found");
        return;
    }
    Reporting("PrintToDoList", [&] {
        const std::string title = FormatDate(Today(), "mmm dd, yyyy") + " To Do List";
        const auto page = Printer().begin(title);
        page->setScale(PaperWidth, PaperHeight);
        page->text(Margin, Margin, title, TitleFont, Black);
        for (std::size_t row = 0; row < ToDoRows; ++row) PrintRow(*page, sheet, row);
        page->end();
    });
}
