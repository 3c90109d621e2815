// Icons: the lines and files, placing them on real months and on the template's, dropping, moving, removing, saving.
#include "marks/modIcons.h"

#include "marks/modSaveChanges.h"
#include "tests/support/planner.h"

namespace {
struct IconsTest : PlannerTest {
    IconsTest() {
        std::string tags;
        for (int slot = 0; slot < PaletteSize; ++slot)
            tags += Padded(slot, 3) + ":Caption " + std::to_string(slot) + "\r\n";
        folder.put("Icon Tags.dat", tags);
        for (int picture = 0; picture < LibrarySize; ++picture)
            folder.put("Images/" + std::to_string(picture) + ".ico", "picture");
    }

    /// What drawing a month does with the icons.
    static MonthIcons Draw(int year, int month) {
        SelectDate(MakeDate(year, month, 1));
        ResetMonthIcons(SelectedDate);
        return PlaceMonthIcons();
    }

    /// Saves the month's icons and answers the file's bytes.
    std::string saved(const char* file) {
        dialogs.expect("Calendar Saved.");
        EXPECT_TRUE(Save1MonthIcons());
        return folder.get(file);
    }

    static void DropOn(Date date) { DropIcon(CellOf(date).column + 0.5, CellOf(date).row + 1.25); }
    static void DropFromPalette(int slot, Date date) { BeginDragFromPalette(slot), DropOn(date); }

    /// The tags of the icons to be seen, in the order of their controls.
    static std::string Visible() {
        std::string tags;
        for (const PlacedIcon& icon : IconPool)
            if (icon.visible) tags += icon.tag + "|";
        return tags;
    }
};

TEST_F(IconsTest, AMonthShowsItsFileOrTheTemplate) {
    const std::string file = "06:02 Index:41\r\n06:00 Index:07\r\n29:03 Index:95\r\n30:00 Index:00\r\n";
    EXPECT_EQ(Draw(2026, 4), MonthIcons::Untouched);
    folder.put("2026/Apr_Icons.dat", file);
    EXPECT_EQ(Draw(2026, 4), MonthIcons::Modified);
    EXPECT_EQ(Visible(), "06:02 Index:41|06:00 Index:07|29:03 Index:95|");  // April has no 31st
    // The 7th of April 2026 is a Tuesday in the second row.
    EXPECT_DOUBLE_EQ(IconPool[0].left, 2.52);
    EXPECT_DOUBLE_EQ(IconPool[0].top, 2.45);
    EXPECT_EQ(saved("2026/Apr_Icons.dat"), file);
    EXPECT_EQ(folder.backups(), "");
    folder.put("2026/Apr_Icons.dat", "");
    folder.put("Template.dat", "05:00 Index:03\r\n");
    EXPECT_EQ(Draw(2026, 4), MonthIcons::MarksOnly);
    EXPECT_FALSE(AnyIconPlaced());
    EXPECT_EQ(Draw(2026, 5), MonthIcons::Template);
    EXPECT_TRUE(AnyIconPlaced());
}

TEST_F(IconsTest, TheTemplatesLastDaysFollowTheMonth) {
    folder.put("Template.dat", "30:00 Index:01\r\n28:01 Index:02\r\n29:02 Index:03\r\n27:00 Index:04\r\n");
    const std::tuple<int, int, const char*> months[] = {
        {2026, 1, "30:00 Index:01|28:01 Index:02|29:02 Index:03|27:00 Index:04|"},
        {2026, 4, "29:00 Index:01|28:01 Index:02|29:02 Index:03|27:00 Index:04|"},
        {2026, 2, "27:00 Index:01|27:02 Index:03|27:01 Index:04|"},  // two icons of one slot: the next free
        {2028, 2, "28:00 Index:01|28:01 Index:02|28:02 Index:03|27:00 Index:04|"}};
    for (const auto& [year, month, shown] : months) {
        Draw(year, month);
        EXPECT_EQ(Visible(), shown) << year << "-" << month;
    }
    EXPECT_EQ(saved("2028/Feb_Icons.dat").substr(0, 16), "28:00 Index:01\r\n");  // the month's own day
    Draw(2028, 2);
    EXPECT_EQ(Visible(), std::get<2>(months[3]));
}

TEST_F(IconsTest, DropsFillTheDayAndMovesKeepOneLine) {
    Draw(2026, 4);
    const Date day = MakeDate(2026, 4, 7);
    for (const int slot : {41, 42, 43, 44}) DropFromPalette(slot, day);
    EXPECT_TRUE(IconsChanged);
    EXPECT_EQ(Visible(), "06:00 Index:41|06:01 Index:42|06:02 Index:43|06:03 Index:44|");
    dialogs.expect("Day Full");
    DropFromPalette(45, day);
    EXPECT_EQ(IconPool.size(), 4u);

    BeginDragOfIcon(1);
    EXPECT_FALSE(IconSlotUsed[1][6]);
    DropOn(day + 1);
    EXPECT_EQ(Visible(), "06:00 Index:41|07:00 Index:42|06:02 Index:43|06:03 Index:44|");
    DropFromPalette(46, day);  // the place that became free
    BeginDragOfIcon(1);
    dialogs.expect("Day Full");
    DropOn(day);
    BeginDragOfIcon(0);
    DropIcon(0.5, 0.5);  // the header
    BeginDragOfIcon(0);
    DropIcon(0.5, 1.25);  // April 2026 begins on a Wednesday
    EXPECT_EQ(DragKind, Drag::None);
    EXPECT_TRUE(IconSlotUsed[0][6]);
    EXPECT_EQ(Visible(), "06:00 Index:41|07:00 Index:42|06:02 Index:43|06:03 Index:44|06:01 Index:46|");
    EXPECT_EQ(saved("2026/Apr_Icons.dat"),
              "06:00 Index:41\r\n07:00 Index:42\r\n06:02 Index:43\r\n06:03 Index:44\r\n06:01 Index:46\r\n");
}

TEST_F(IconsTest, RemovedControlsAreUsedAgain) {
    folder.put("2026/Apr_Icons.dat", "06:00 Index:41\r\n06:01 Index:42\r\n07:00 Index:43\r\n");
    Draw(2026, 4);
    EXPECT_FALSE(SelectIconOf(MakeDate(2026, 4, 9)));
    EXPECT_TRUE(SelectIconOf(MakeDate(2026, 4, 7)));
    RemoveSelectedIcon();
    EXPECT_EQ(MonthIconCount, 2);
    DropFromPalette(50, MakeDate(2026, 4, 7));
    RemoveSelectedIcon();  // it is gone already, and the new one was not selected
    EXPECT_EQ(Visible(), "06:00 Index:41|06:01 Index:50|07:00 Index:43|");

    dialogs.expect("remove all icons for the entire month", Answer::No);
    RemoveAllIcons();
    EXPECT_EQ(MonthIconCount, 3);
    dialogs.expect("Preparing to remove all Icons", Answer::Yes);
    RemoveAllIcons();
    EXPECT_EQ(Visible(), "");
    dialogs.expect("Month Has Changed", Answer::No);
    EXPECT_TRUE(MayGoOn());
    EXPECT_EQ(folder.get("2026/Apr_Icons.dat"), "06:00 Index:41\r\n06:01 Index:42\r\n07:00 Index:43\r\n");
}

TEST_F(IconsTest, UnsavedIconsOutliveRedrawsAndAreAskedAboutOnce) {
    Draw(2026, 4);
    DropFromPalette(41, MakeDate(2026, 4, 7));
    EXPECT_EQ(Draw(2026, 4), MonthIcons::Modified);
    EXPECT_EQ(Visible(), "06:00 Index:41|");
    dialogs.expect("Do you want to save those changes?", Answer::Cancel);
    EXPECT_FALSE(MayGoOn());
    EXPECT_TRUE(IconsChanged);
    // A drawing that nobody asked about beforehand: April's icons go to April's file.
    dialogs.expect("Do you want to save those changes?", Answer::Yes);
    dialogs.expect("Calendar Saved.");
    Draw(2027, 5);
    EXPECT_EQ(folder.get("2026/Apr_Icons.dat"), "06:00 Index:41\r\n");
    EXPECT_EQ(Visible(), "");
    EXPECT_TRUE(MayGoOn());
}

TEST_F(IconsTest, TheTemplateTakesNothingOnItsLastDaysButOne) {
    TemplateMode = true;
    TemplateDate = MakeDate(2026, 1, 1);
    ResetMonthIcons(TemplateDate);
    ReadTemplateTags();
    DropFromPalette(1, MakeDate(2026, 1, 29));
    DropFromPalette(1, MakeDate(2026, 1, 30));
    EXPECT_FALSE(IconsChanged);
    DropFromPalette(1, MakeDate(2026, 1, 31));
    EXPECT_EQ(TemplateCount, 1);
    EXPECT_EQ(MonthIconCount, 0);
    dialogs.expect("Month Has Changed", Answer::Yes);
    dialogs.expect("Template Saved.");
    EXPECT_TRUE(MayGoOn(true));
    EXPECT_EQ(folder.get("Template.dat"), "30:00 Index:01\r\n");
}

TEST_F(IconsTest, BadFilesAreReportedAndKept) {
    std::string full;
    for (int i = 0; i < MostIcons; ++i) full += TextOfIconLine({i / 4, i % 4, 5}) + "\r\n";
    const std::string one = "06:00 Index:41\r\n";
    for (const auto& [before, bad, error] : {std::tuple{one, "", "13"},
                                             {one, "06:02", "13"},
                                             {one, "xx:02 Index:41", "13"},
                                             {one, "06:02 Index:", "13"},
                                             {one, "31:02 Index:41", "9"},
                                             {one, "06:04 Index:41", "9"},
                                             {one, "06:02 Index:96", "9"},
                                             {one, "06:02 Index:-1", "9"},
                                             {full, "00:00 Index:05", "9"}}) {
        SCOPED_TRACE(bad);
        const std::string file = before + bad + "\r\n07:00 Index:42\r\n";
        folder.put("2026/May_Icons.dat", file);
        dialogs.expect(std::string("An error occurred in Read1MonthIcons.\r\nError Number: ") + error);
        EXPECT_EQ(Draw(2026, 5), MonthIcons::Modified);
        EXPECT_EQ(MonthIconCount, before == full ? MostIcons : 1);
        dialogs.expect("in the folder \"Backup\"");
        EXPECT_TRUE(Save1MonthIcons());
        EXPECT_NE(folder.backups().find(file), std::string::npos);
    }
}

TEST_F(IconsTest, ThePaletteReportsOnceAndLosesNothing) {
    folder.put("Icon Tags.dat", "012:Dentist\r\n1x:Doctor\r\n");
    folder.put("2026/May_Icons.dat", "06:00 Index:00\r\n07:00 Index:20\r\n");
    std::filesystem::remove(folder.path() / "Images" / "20.ico");
    dialogs.expect("An error occurred in ReadIconTags.");
    Draw(2026, 5);
    Draw(2026, 5);
    EXPECT_EQ(IconCaption[0], "Dentist");
    EXPECT_EQ(PictureOfSlot(0), 12);
    EXPECT_EQ(PictureOfSlot(95), 95);
    dialogs.expect("An error occurred in ReadIconTags.");
    ReadIconTags();
    dialogs.expect("in the folder \"Backup\"");
    EXPECT_TRUE(ChangePaletteSlot(1, "Doctor: Anna", 143));
    EXPECT_NE(folder.backups().find("1x:Doctor"), std::string::npos);
    EXPECT_EQ(folder.get("Icon Tags.dat").substr(0, 40), "012:Dentist\r\n143:Doctor: Anna\r\n002:\r\n003");
}
}  // namespace
