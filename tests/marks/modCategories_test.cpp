// The categories' file: read, edited, refused, saved.
#include "marks/modCategories.h"
#include "tests/support/calendar.h"

namespace {
const std::string File = "Marker Colors.dat";
const std::string Starless = CategoryLines;
const std::string Full =
    Replaced(Replaced(Starless, "Holiday:16711680", "Holiday:16711680*"), "Travel:8388608", "Travel:8388608*");

/// The file with another line for Birthday.
std::string With(const std::string& line) { return Replaced(Full, "Birthday:8388736", line); }

using CategoriesTest = PlannerTest;

std::size_t Hidden() { return static_cast<std::size_t>(std::count(MarkerHidden.begin(), MarkerHidden.end(), true)); }
}  // namespace

TEST_F(CategoriesTest, AreReadAndSavedWithAndWithoutTheStars) {
    folder.put(File, Full);
    ReadMarkerColors();
    EXPECT_EQ(MarkerTextColor[2], 0x00FFFFu) << "yellow on brown";
    EXPECT_TRUE(MarkersLoaded && MarkerHidden[8] && MarkerHidden[12] && !CategoryOfColor(0x808080));
    for (const bool withStars : {true, false}) {
        SaveHiddenMarks = withStars;
        dialogs.expect("Marker Colors Saved.");
        EXPECT_TRUE(SaveMarkerColors());
        EXPECT_FALSE(SaveHiddenMarks);
        EXPECT_EQ(folder.get(File), withStars ? Full : Starless);
    }
    ReadMarkerColors();
    EXPECT_EQ(Hidden(), 2u) << "a line without a star leaves its category as it was";
    EXPECT_EQ(folder.backups(), "");
}

TEST_F(CategoriesTest, EditedLabelsAreCheckedSavedAndReadBack) {
    folder.put(File, Full);
    ReadMarkerColors();
    auto edited = MarkerLabels;
    edited[0].caption = "Bills: all";
    dialogs.expect("\":\" separates the caption from the color");
    EXPECT_FALSE(SaveEditedLabels(edited));
    edited[0] = {"Bills*", Silver, White};
    edited[1].color = Silver;
    dialogs.expect("You cannot use the same color twice. Choose a different color for each category.");
    EXPECT_FALSE(SaveEditedLabels(edited));
    EXPECT_EQ(MarkerColor[1], Silver);
    EXPECT_EQ(folder.get(File), Full);
    CloseMarkerLabels();
    EXPECT_EQ(MarkerColor[1], 0x80FFu) << "what was refused is undone with the window";

    edited[1] = MarkerLabels[1];
    dialogs.expect("Marker Colors Saved.");
    EXPECT_TRUE(SaveEditedLabels(edited));
    EXPECT_EQ(folder.get(File), "Bills*:12632256" + Starless.substr(Starless.find('\r')));
    OpenMarkerLabels();
    EXPECT_TRUE(MarkersLoaded && Hidden() == 2) << "the display keeps its state";
}

TEST_F(CategoriesTest, FaultsAreReportedLinesBeforeThemStandAndNothingIsLost) {
    const auto read = [] {
        ReadMarkerColors();
        return 14 - static_cast<int>(std::count(MarkerColor.begin(), MarkerColor.end(), 0u));
    };
    const auto save = [&] {
        dialogs.expect("Marker Colors Saved.");
        return SaveMarkerColors();
    };
    expectKept(File,
               {{Full + "More:1\r\n", "Number: 9", 14},
                {Full + Full, "(line 15 of the file \"Marker Colors.dat\")", 14},
                {With("Birthday:"), "Number: 13", 4},
                {With("Birthday"), "Number: 13", 4},
                {With("Birth: day:255"), "Number: 13", 4},
                {With("Birthday:-1"), "Number: 6", 4},
                {With("Birthday:16777216"), "Number: 6", 4},
                {With(std::string(20, '\0')), "Number: 13", 4},
                {Replaced(Starless, "Birthday:", "Birthday: "), "", 14},
                {"", "Number: 62", 0}},
               read, save);
}

TEST_F(CategoriesTest, SurviveBeingCutAtEveryByte) {
    ForEachCut(Full, [&](const std::string& cut, const TemporaryFolder& fresh) {
        fresh.put(File, cut);
        if (cut.size() <= Full.find("16711935")) dialogs.expect("ReadMarkerColors");
        ReadMarkerColors();
        dialogs.expect("Marker Colors Saved.");
        SaveHiddenMarks = true;
        EXPECT_TRUE(SaveMarkerColors());
        EXPECT_TRUE(fresh.get(File).starts_with(cut) || fresh.backups() == cut);
        dialogs.verify();
    });
}

TEST_F(CategoriesTest, MissingFileLeavesTheCaptionsAndAFailedSaveTheLabels) {
    dialogs.expect("Number: 53");
    ReadMarkerColors();
    EXPECT_EQ(CategoryOfColor(0), std::nullopt);
    auto edited = MarkerLabels;
    for (std::size_t k = 0; k < CategoryCount; ++k) edited[k] = {"Talk", MarkerPalette[k], White};
    std::filesystem::create_directories(folder.path() / File / "in the way");
    dialogs.expect("SaveMarkerColors");
    EXPECT_FALSE(SaveEditedLabels(edited));
    EXPECT_EQ(MarkerLabels[9].caption, "Meeting");
}
