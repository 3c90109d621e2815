// Searching the notes of a year.
#include "notes/modSearch.h"

#include "notes/modNotes.h"
#include "tests/support/planner.h"

namespace {
TEST(Phrase, IsFoundInEitherCaseAndNeverAcrossALineBreak) {
    struct Row {
        const char* phrase;
        std::string note;  // as people type it
        bool found;
    };
    for (const Row& row :
         {Row{"lunch", "LUNCH with Sam", true}, Row{"LUNCH", "a lunch", true}, Row{"lunch", "lunc", false},
          Row{"\xC9T\xC9", "un \xE9t\xE9", true}, Row{"two lines", "two\r\nlines", false},
          Row{"\xF5", "two\r\nlines", false}, Row{"\xD5", "two\r\nlines", false}, Row{"\xD5", "a\xF5", true},
          Row{"f\xF2", "PF\xF2", true}})
        for (std::size_t shift = 0; shift < 70; shift += 23)
            EXPECT_EQ(FinderInNotes(row.phrase).find(EncodedLineBreaks(std::string(shift, '_') + row.note)) !=
                          std::string::npos,
                      row.found)
                << row.phrase << " in " << row.note << " at " << shift;
}

struct SearchTest : PlannerTest {
    SearchTest() {
        Calendar.yearOnDisplay = 2026;
        folder.put(
            "2026/Notes.dat",
            "01/08/26:000401:Vet\r\n03/04/26:020300:lunch\r\n03/04/26:020300:and LUNCH\r\n03/09/26:020101:vet\r\n");
        folder.put("2035/Notes.dat", "03/01/35:020400:far away\r\n");
    }
};

TEST_F(SearchTest, ListsDatesOfAYearOrAMonth) {
    using Dates = std::vector<std::string>;
    const auto slot = ReadNotesOfYear(2026);
    ASSERT_EQ(slot, ThisYear);
    EXPECT_EQ(NoteDatesWithPhrase(*slot, 0, "vet"), (Dates{"01/08/26", "03/09/26"}));
    EXPECT_EQ(NoteDatesWithPhrase(*slot, 3, "vet"), Dates{"03/09/26"});
    EXPECT_EQ(NoteDatesWithPhrase(*slot, 0, "lunch"), Dates{"03/04/26"});
    EXPECT_EQ(NoteDatesInMonth(ReadNotesOfYear(2035).value(), 3), Dates{"03/01/35"});
    EXPECT_EQ(ShortDate(SelectedDate), "1/1/2035");
}

TEST_F(SearchTest, OpensAListedNoteOfItsOwnYear) {
    std::string shown;
    NoteEditor.open = [&](const std::string&, const std::string& text) { shown = text; };
    ReadNotesOfYear(2035);
    OpenListedNote(2026, "03/09/26");  // listed before the other year came on display
    EXPECT_EQ(shown, "vet");
    EXPECT_EQ(ShortDate(SelectedDate), "3/9/2026");
    dialogs.expect("Couldn't find note to open.");
    EXPECT_FALSE(OpenListedNote(2026, "03/10/26"));
    NoteEditor = {};
}
}  // namespace
