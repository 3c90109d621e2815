// The to-do list: what files mean, what a save writes, moving rows, the printed sheet.
#include "notes/modToDo.h"

#include "tests/support/planner.h"
#include "tests/support/printer.h"

using namespace std::string_literals;

namespace {
const std::string TenRows =
    "\xF3one\r\n\xF5two\r\n\xF5\r\n\xF3\r\n\xF5 five \r\n\xF5six \xF3 and \xF5\r\n\xF5\r\n\xF5\r\n\xF5\r\n\xF3ten\r\n";

/// The texts joined by "|"; a "+" before those that are done.
std::string Shown(const ToDoColumn<std::string>& texts, const ToDoColumn<bool>& done) {
    std::string all;
    for (std::size_t row = 0; row < ToDoRows; ++row)
        all += (row > 0 ? "|" : "") + std::string(done[row] ? "+" : "") + texts[row];
    return all;
}
std::string Edited() { return Shown(ToDo.editedTexts, ToDo.done); }
std::string Panel() { return Shown(ToDo.panelTexts, ToDo.panelDone); }

struct ToDoTest : PlannerTest {
    void open(const std::string& bytes) { open(bytes, folder); }
    static void open(const std::string& bytes, const TemporaryFolder& folder) {
        folder.put("To Do.dat", bytes);
        TaskListOpenRequested = true;
        ReadToDoList();
    }
    void save() {
        dialogs.expect("To Do List Saved.");
        EXPECT_TRUE(SaveToDoList());
        EXPECT_FALSE(TaskListChanged);
    }
};
}  // namespace

TEST_F(ToDoTest, FilesAsTheyAreRead) {
    using Row = std::tuple<std::string, std::string, bool, bool>;
    for (const auto& [file, rows, tooLong, backup] :
         {Row{TenRows, "+one|two||+| five |six \xF3 and \xF5||||+ten", false, false},
          Row{"\xF3x\n\xF5y\n\xF5z", "+x|y|z|||||||", false, false},  // the last without an end
          Row{"\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n", "|||||||||", false, false},
          Row{TenRows + "\xF5lost?\r\n", "+one|two||+| five |six \xF3 and \xF5||||+ten", true, true},
          Row{"Milk\r\n", "ilk|||||||||", false, true}, Row{"", "|||||||||", false, false}}) {
        SCOPED_TRACE(file);
        const TemporaryFolder fresh;
        if (tooLong) dialogs.expect("line 11 of the file \"To Do.dat\"");
        open(file, fresh);
        EXPECT_EQ(Edited(), rows);
        EXPECT_FALSE(TaskListChanged || TaskListOpenRequested);
        save();
        EXPECT_EQ(fresh.backups(), backup ? file : "");
    }
}

TEST_F(ToDoTest, PanelShowsNoBlankTextsAndEmptyLinesKeepMarks) {
    for (const auto& [file, rows] :
         {std::pair{"\xF3 \r\n\xF3two\r\n", "+|+two||||||||"}, {"\r\n\r\n", "+|+||||||||"}}) {
        folder.put("To Do.dat", file);
        ReadToDoList();
        EXPECT_EQ(Panel(), rows);
    }
    std::filesystem::remove(folder.path() / "To Do.dat");
    ReadToDoList();
    EXPECT_EQ(Panel(), "|||||||||");
}

TEST_F(ToDoTest, SavesTheSameBytesAgainAndAgain) {
    open(TenRows);
    ToggleToDoDone(2);
    EXPECT_FALSE(TaskListChanged) << "a mark alone asks nothing at the end";
    SetToDoText(1, "two\r\nlines\nmore");
    EXPECT_TRUE(TaskListChanged);
    std::string wanted = TenRows;
    wanted.replace(wanted.find("two\r\n\xF5"), 6, "two lines more\r\n\xF3");
    for (int times = 0; times < 2; ++times) {
        save();
        EXPECT_EQ(folder.get("To Do.dat"), wanted);
    }
}

TEST_F(ToDoTest, FailedSaveKeepsTheEditsAndTheFile) {
    SetToDoText(0, "typed");
    std::filesystem::create_directories(folder.path() / "To Do.dat");  // nothing can be written in its place
    dialogs.expect("SaveToDoList");
    EXPECT_FALSE(SaveToDoList());
    EXPECT_TRUE(TaskListChanged);
    EXPECT_EQ(ToDo.editedTexts[0], "typed");
}

TEST_F(ToDoTest, MovesRowsOnlyIntoAnEmptyOne) {
    open(TenRows);
    EXPECT_FALSE(MoveToDoDown());
    EXPECT_FALSE(TaskListChanged);
    SetToDoText(9, "");
    EXPECT_TRUE(MoveToDoDown());
    EXPECT_EQ(Edited(), "|+one|two||+| five |six \xF3 and \xF5|||");
    EXPECT_TRUE(MoveToDoUp());
    EXPECT_EQ(Edited(), "+one|two||+| five |six \xF3 and \xF5||||");
    EXPECT_FALSE(MoveToDoUp());
}

TEST_F(ToDoTest, PrintsEachControlAtItsPlace) {
    ToDoSheet sheet;
    for (std::size_t row = 0; row < ToDoRows; ++row) {
        const double top = 600 + 345 * static_cast<double>(row);
        sheet.mark[row] = {120, top, 240, 240};
        sheet.number[row] = {480, top, 300, 240};
        sheet.text[row] = {840, top, 6000, 300};
    }
    dialogs.expect("Printer could not be found");
    PrintToDoList(sheet);

    const RecordedPrinter printer;
    CheckPrinter();
    SetToDoText(1, "Water the plants");
    SetToDoText(2, std::string(200, 'x'));
    ToggleToDoDone(1);
    PrintToDoList(sheet);
    for (const std::string& call :
         {"text 720 720 'Nov 22, 2026 To Do List' Arial 14 bold 000000"s, "box 840 1665 1080 1905 000000"s,
          "text 1200 1685 '2' Arial 10 000000"s, "text 1560 1715 'Water the plants' Arial 10 000000"s,
          "text 1560 2110.2 '" + std::string(200, 'x') + "' Arial 4.98 000000"})  // fits the page
        EXPECT_EQ(printer.count(call), 1U) << call;
    EXPECT_EQ(printer.count("box "), std::size_t{ToDoRows});
    EXPECT_EQ(printer.count("line "), 2U);
    EXPECT_EQ(printer.page->calls().back(), "end");
}
