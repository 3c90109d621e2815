// The notes store: its tables, its files, and what must not get lost in them.
#include "notes/modNotes.h"

#include "marks/modSaveChanges.h"
#include "tests/support/planner.h"

namespace {
/// A year on display, and an editor that holds a text without a window.
struct NotesTest : PlannerTest {
    NotesTest() {
        Calendar.yearOnDisplay = 2026;
        NoteEditor = {[this](const std::string& caption, const std::string& text) {
                          shownCaption = caption;
                          typed = text;
                          NotesWindowOpen = true;
                      },
                      [this] {
                          if (stays) return false;
                          NotesWindowOpen = false;
                          return true;
                      },
                      [this] { return refuses ? std::nullopt : std::optional(typed); }};
    }
    ~NotesTest() override {
        NoteEditor = {};
        SetDisk({});
    }

    /// The text that is shown for the date.
    const std::string& open(int month, int day, int year = 2026) {
        SelectDate(MakeDate(year, month, day));
        DisplayThisNote();
        return typed;
    }
    void write(int month, int day, const std::string& text, int year = 2026) {
        open(month, day, year);
        typed = text;
        NotesChanged = true;
        dialogs.expect("Notes Saved");
        EXPECT_TRUE(SaveOpenNote());
        EXPECT_FALSE(NotesChanged);
    }
    std::string file(int year = 2026) { return folder.get(std::to_string(year) + "/Notes.dat"); }

    std::string typed, shownCaption;
    bool stays = false, refuses = false;
};

TEST_F(NotesTest, AreWrittenInDateOrderEachInOneLine) {
    write(10, 5, "three\r\nlines\r\nof it");
    write(2, 7, "an earlier one");
    write(12, 31, "a colon: kept");
    EXPECT_EQ(file(),
              "02/07/26:010600:an earlier one\r\n10/05/26:090101:three\xD5\xD2lines\xD5\xD2of it\r\n"
              "12/31/26:110404:a colon: kept\r\n");
    EXPECT_EQ(open(10, 5), "three\r\nlines\r\nof it");
    EXPECT_TRUE(NoteFlags(9, 1, 1) && !NoteFlags(9, 2, 1));
    EXPECT_EQ(CurrentNote, 1);
    write(10, 5, "  ");
    EXPECT_EQ(lstNotes, (std::vector<std::string>{"02/07/26", "12/31/26"}));
    EXPECT_FALSE(NoteFlags(9, 1, 1));
}

TEST_F(NotesTest, OfNextYearKeepToTheirOwnFile) {
    SpansNextYear = true;
    write(1, 3, "next year", 2027);
    write(12, 30, "this year");
    EXPECT_TRUE(NextNoteFlags(0, 0, 1) && lstNotes2.size() == 1);
    write(5, 1, "a year in neither slot", 2031);
    EXPECT_EQ(YearOfSlot(ThisYear), 2031);
    EXPECT_EQ(file(2026) + file(2027) + file(2031),
              "12/30/26:110304:this year\r\n01/03/27:000001:next year\r\n05/01/31:040400:a year in neither slot\r\n");
}

TEST_F(NotesTest, TwoLinesOfOneDateSurviveAndAreShownTogether) {
    const std::string lines = "03/04/26:020300:first\r\n03/04/26:020300:second\r\n";
    folder.put("2026/notes.dat", lines);
    write(1, 1, "x");
    EXPECT_EQ(folder.get("2026/notes.dat"), "01/01/26:000400:x\r\n" + lines);
    EXPECT_EQ(open(3, 4), "first\r\nsecond");
    write(3, 4, "one now");
    EXPECT_EQ(folder.get("2026/notes.dat"), "01/01/26:000400:x\r\n03/04/26:020300:one now\r\n");
}

TEST_F(NotesTest, BadLinesAreReportedOnceAndKeptInBackup) {
    const auto file = [](const std::string& line) {
        return "03/04/26:020300:before\r\n" + line + "\r\n07/04/26:060600:after\r\n";
    };
    const auto read = [&] {
        Calendar.yearOnDisplay = 2026;
        ReadThisYearsNotes();
        EXPECT_NE(dialogs.shown().back().text.find("(line 2 of the file \"2026\\Notes.dat\")"), std::string::npos);
        return NoteCount();
    };
    const auto save = [&] {
        open(3, 4);
        dialogs.expect("Backup");
        return SaveOpenNote();
    };
    expectKept("2026/Notes.dat",
               {{file("03/05/26:0203"), "Number: 5", 1},
                {file(""), "Number: 5", 1},
                {file("03/05/26:02ab00:x"), "Number: 13", 1},
                {file("03/05/26:129900:x"), "Number: 9", 1}},
               read, save);
}

TEST_F(NotesTest, MarkTheDayOfTheirDateWhateverTheCellAndNoneForWhatIsNoDate) {
    folder.put("2026/Notes.dat",
               "02/30/26:010100:a\r\n03/04/25:020300:b\r\nxx/04/26:020300:c\r\n03/04/26:000000:d\r\n");
    ReadThisYearsNotes();
    ForEachCell([](Cell cell) { EXPECT_EQ(NoteFlags[cell], cell == CellOf(MakeDate(2026, 3, 4))); });
    EXPECT_EQ(NoteCount(), 4);
    const std::string withoutColon = "03/04/26:020300Hello\r\n";
    folder.put("2026/Notes.dat", withoutColon);
    ReadThisYearsNotes();
    dialogs.expect("Backup");
    DeleteNotes(ThisYear, {});
    EXPECT_EQ(folder.backups(), withoutColon);
}

TEST_F(NotesTest, StayUnsavedWhenTheSaveIsRefusedOrFails) {
    write(3, 4, "saved");
    open(3, 4);
    NotesChanged = true;
    typed = "\xD2tto";
    dialogs.expect("turn", Answer::No);
    EXPECT_FALSE(SaveOpenNote());
    refuses = true;
    EXPECT_FALSE(SaveOpenNote());
    refuses = false;
    SetDisk({.write = [](const Path&, std::string_view) { throw Error(DiskFull); }});
    dialogs.expect("turn", Answer::Yes).expect("SaveThisYearsNotes");
    EXPECT_FALSE(SaveOpenNote());
    EXPECT_TRUE(NotesChanged);
    EXPECT_EQ(file(), "03/04/26:020300:saved\r\n");
    EXPECT_EQ(NoteOf(ThisYear, MakeDate(2026, 3, 4)), "saved");  // nor is it saved along with another note
    SetDisk({});
    dialogs.expect("turn", Answer::Yes).expect("Notes Saved");
    EXPECT_TRUE(SaveOpenNote());
}

TEST_F(NotesTest, AreDeletedByDateAndOnlyThose) {
    folder.put("2026/Notes.dat",
               "12/01/26:110200:c\r\n03/04/26:020300:a\r\n05/01/26:040500:b\r\n03/04/26:020300:a2\r\n");
    ReadThisYearsNotes();
    typed = "open in the editor";
    dialogs.expect("Notes Saved");
    DeleteNotes(ThisYear, {"03/04/26", "12/01/26"});
    EXPECT_EQ(file(), "05/01/26:040500:b\r\n");
    EXPECT_EQ(lstNotes, std::vector<std::string>{"05/01/26"});
    EXPECT_FALSE(NoteDeletePending);
}

TEST_F(NotesTest, OpenOnlyWhenTheOpenEditorMayCloseAndAreStoredUnderTheDateItShows) {
    open(3, 4);
    typed = "of March";
    stays = true;
    open(5, 1);  // another day while the editor is open
    EXPECT_EQ(shownCaption, "Notes for March 04, 2026");
    dialogs.expect("Notes Saved");
    EXPECT_TRUE(SaveOpenNote());
    EXPECT_EQ(file(), "03/04/26:020300:of March\r\n");
    stays = false;
    EXPECT_EQ(open(5, 1), "");
    EXPECT_EQ(CurrentNote, -1);
}

TEST_F(NotesTest, AreAskedAboutBeforeTheViewChanges) {
    write(3, 4, "a");
    AskAboutOpenNote(false);  // nothing has changed: no question
    typed = "\xD5";
    for (const Answer answer : {Answer::Cancel, Answer::Yes, Answer::No}) {
        NotesChanged = true;
        SaveCancelled = false;
        dialogs.expect("The Notes have been changed", answer);
        if (answer == Answer::Yes) dialogs.expect("turn", Answer::No);
        AskAboutOpenNote(answer == Answer::Yes);
        const bool kept = answer != Answer::No;
        EXPECT_TRUE(SaveCancelled == kept && NotesChanged == kept && NotesWindowOpen == kept);
    }
    EXPECT_EQ(file(), "03/04/26:020300:a\r\n");
}
}  // namespace
