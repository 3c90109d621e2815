// Attaching hover texts.
#include "marks/modHoverText.h"

#include <gtest/gtest.h>

#include "calendar/modCalendar.h"
#include "marks/modMarks.h"
#include "tests/support/dialogs.h"
#include "tests/support/folder.h"

namespace {
struct HoverTextTest : testing::Test {
    TemporaryFolder folder;
    ScriptedDialogs dialogs;

    HoverTextTest() {
        folder.put("2026Marks.dat", "01:03:01:255-old");
        folder.put("2027Marks.dat", "03:03:01:255");
        Calendar.yearOnDisplay = 2026;
        SpansNextYear = true;
        select(MakeDate(2026, 2, 11));
        ReadAndDisplayThisYearsMarks();
        ReadAndDisplayNextYearsMarks();
    }
    static void select(Date date) {
        SelectDate(date);
        SelectedInNextYear = LiesInNextYear(date);
    }
};
}  // namespace

TEST_F(HoverTextTest, AnswerIsSavedWithItsMarkAndAnEmptyOneChangesNothing) {
    for (const auto& [answer, saved] :
         {std::pair{"", "old"}, {"Lunch - 12:30", "Lunch - 12:30"}, {"two\r\nlines", "two  lines"}}) {
        dialogs.expectInput("Optional Hover Text for Feb 11, 2026", answer);
        AttachHoverText();
        EXPECT_EQ(folder.get("2026Marks.dat"), std::string("01:03:01:255-") + saved);
        EXPECT_EQ(HoverText(1, 3, 1), saved);
    }
    EXPECT_EQ(dialogs.shown()[1].preset, "old");
    EXPECT_EQ(dialogs.shown()[0].text,
              "You may input the Hover Text in the box provided or click Enter or Escape to ignore.");
}

TEST_F(HoverTextTest, GoesToTheYearOfTheSelectedDate) {
    select(MakeDate(2027, 4, 7));
    dialogs.expectInput("Apr 07, 2027", "Spring");
    AttachHoverText();
    EXPECT_EQ(folder.get("2027Marks.dat"), "03:03:01:255-Spring");
    EXPECT_EQ(folder.get("2026Marks.dat"), "01:03:01:255-old");
    SelectedInNextYear = false;  // as after a redraw
    dialogs.expectInput("Apr 07, 2027", "Summer");
    AttachHoverText();
    EXPECT_EQ(folder.get("2027Marks.dat"), "03:03:01:255-Summer");
}

TEST_F(HoverTextTest, NothingIsTypedForADayThatCouldNotKeepIt) {
    select(MakeDate(2026, 2, 12));
    dialogs.expect("Mark the date first.");
    AttachHoverText();
    SelectedCell = {1, 6, 5};  // an empty cell
    AttachHoverText();
    SelectedCell = {};
    AttachHoverText();
    EXPECT_EQ(dialogs.shown().size(), 1u);
}
