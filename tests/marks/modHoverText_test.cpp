// Attaching hover texts.
#include "marks/modHoverText.h"

#include "marks/modMarks.h"
#include "tests/support/calendar.h"

namespace {
struct HoverTextTest : CalendarTest {
    HoverTextTest() {
        folder.put("2026Marks.dat", "08:03:01:255-old");
        folder.put("2027Marks.dat", "00:03:01:255");
        show(6, 2026, 9, 1);
    }
};
}  // namespace

TEST_F(HoverTextTest, AnswerIsSavedWithItsMarkAndAnEmptyOneChangesNothing) {
    click(2026, 9, 9);
    for (const auto& [answer, saved] :
         {std::pair{"", "old"}, {"Lunch - 12:30", "Lunch - 12:30"}, {"two\r\nlines", "two  lines"}}) {
        dialogs.expectInput("Optional Hover Text for Sep 09, 2026", answer);
        AttachHoverText();
        EXPECT_EQ(folder.get("2026Marks.dat"), std::string("08:03:01:255-") + saved);
        EXPECT_EQ(HoverText(8, 3, 1), saved);
    }
    EXPECT_EQ(dialogs.shown()[1].preset, "old");
    click(2027, 1, 6);
    dialogs.expectInput("Jan 06, 2027", "Winter");
    AttachHoverText();
    EXPECT_EQ(folder.get("2027Marks.dat"), "00:03:01:255-Winter");
    EXPECT_EQ(folder.get("2026Marks.dat"), "08:03:01:255-two  lines");
}

TEST_F(HoverTextTest, NothingIsTypedForADayThatCouldNotKeepIt) {
    click(2026, 9, 10);
    dialogs.expect("Mark the date first.");
    AttachHoverText();
    SelectedCell = {8, 6, 5};  // an empty cell
    AttachHoverText();
    EXPECT_EQ(dialogs.shown().size(), 1u);
}
