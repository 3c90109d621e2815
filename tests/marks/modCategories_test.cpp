// The categories' file: read, edited, refused, saved.
#include "marks/modCategories.h"

#include <gtest/gtest.h>

#include "base/errors.h"
#include "tests/support/dialogs.h"
#include "tests/support/disk.h"
#include "tests/support/folder.h"

namespace {
const std::string File = "Marker Colors.dat";
const std::string Full =
    "Account Payable:128\r\nAccount Receivable:32768\r\nAnniversary:16711935\r\nAppointment:16711680\r\n"
    "Birthday:8388736\r\nCelebration:33023\r\nDining:16512\r\nEvent:8421376\r\nHoliday:255*\r\nMeeting:8388608\r\n"
    "Quick Marks:12632256\r\nToday's Date:65535\r\nTravel:65280*\r\nVacation:16776960\r\n";
const std::string WithoutStars = [] {
    std::string file = Full;
    std::erase(file, '*');
    return file;
}();

struct CategoriesTest : testing::Test {
    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    void read(const std::string& bytes) {
        folder.put(File, bytes);
        ReadMarkerColors();
    }
};

int Hidden() { return static_cast<int>(std::count(MarkerHidden.begin(), MarkerHidden.end(), true)); }
}  // namespace

TEST_F(CategoriesTest, AreReadAndShownEverywhere) {
    int shown = 0;
    ShowCategoriesInMenus = ShowCategoriesInBoxes = ShowCategoriesInLabels = [&] { ++shown; };
    read(Full);
    ShowCategoriesInMenus = ShowCategoriesInBoxes = ShowCategoriesInLabels = {};
    EXPECT_EQ(shown, 3);
    EXPECT_EQ(MarkerCaption[12], "Travel");
    EXPECT_EQ(MarkerColor[4], 0x800080u);
    EXPECT_EQ(MarkerTextColor[6], 0x00FFFFu) << "yellow on brown";
    EXPECT_EQ(MarkerTextColor[11], Black);
    EXPECT_TRUE(MarkerHidden[8] && MarkerHidden[12] && Hidden() == 2);
    EXPECT_TRUE(MarkersLoaded);
    EXPECT_EQ(CategoryOfColor(0x0000FF), 8);
    EXPECT_EQ(CategoryOfColor(0x808080), std::nullopt);
    read(WithoutStars);
    EXPECT_EQ(Hidden(), 2) << "a line without a star leaves its category as it was";
}

TEST_F(CategoriesTest, DisplaySettingAloneSavesTheStars) {
    read(Full);
    MarkerHidden[8] = false;
    MarkerHidden[3] = true;
    for (const bool withStars : {true, false}) {
        SaveHiddenMarks = withStars;
        dialogs.expect("Marker Colors Saved.");
        EXPECT_TRUE(SaveMarkerColors());
        EXPECT_FALSE(SaveHiddenMarks);
        const std::string file = folder.get(File);
        EXPECT_EQ(file.find("Travel:65280*\r\n") != std::string::npos, withStars);
        EXPECT_EQ(std::count(file.begin(), file.end(), '*'), withStars ? 2 : 0);
    }
    EXPECT_EQ(folder.get(File), WithoutStars);
    EXPECT_EQ(folder.backups(), "");
}

TEST_F(CategoriesTest, EditedLabelsAreCheckedSavedAndReadBack) {
    read(Full);
    auto edited = MarkerLabels;
    edited[0].caption = "Bills: all";
    dialogs.expect("\":\" separates the caption from the color");
    EXPECT_FALSE(SaveEditedLabels(edited));
    EXPECT_EQ(MarkerCaption[0], "Account Payable");

    edited[0] = {"Bills*", 0x8080, White};
    edited[1].color = 0x8080;
    dialogs.expect("You cannot use the same color twice. Choose a different color for each category.");
    EXPECT_FALSE(SaveEditedLabels(edited));
    EXPECT_EQ(MarkerColor[1], 0x8080u);
    EXPECT_EQ(folder.get(File), Full);
    CloseMarkerLabels();
    EXPECT_EQ(MarkerColor[1], 0x8000u) << "what was refused is undone with the window";

    edited[1] = MarkerLabels[1];
    dialogs.expect("Marker Colors Saved.");
    EXPECT_TRUE(SaveEditedLabels(edited));
    EXPECT_EQ(folder.get(File), "Bills*:32896" + WithoutStars.substr(std::string("Account Payable:128").size()));
    EXPECT_EQ(MarkerCaption[0], "Bills*");
    EXPECT_EQ(Hidden(), 2) << "the display keeps its state";
}

TEST_F(CategoriesTest, OpeningTheLabelsAgainKeepsWhatIsOnDisplay) {
    read(Full);
    MarkerHidden[8] = false;
    CloseMarkerLabels();
    EXPECT_FALSE(MarkersLoaded);
    OpenMarkerLabels();
    EXPECT_TRUE(MarkersLoaded);
    EXPECT_FALSE(MarkerHidden[8]);
}

TEST_F(CategoriesTest, FaultsAreReportedLinesBeforeThemStandAndNothingIsLost) {
    const std::string middle = "Birthday:8388736";
    const auto with = [&](const std::string& line) {
        return std::string(Full).replace(Full.find(middle), middle.size(), line);
    };
    struct Row {
        const char* name;
        std::string file;
        const char* error;
        std::size_t read;  // categories in effect
    };
    for (const Row& row : std::vector<Row>{{"fifteen lines", Full + "More:1\r\n", "Number: 9", 14},
                                           {"twice", Full + Full, "Number: 9", 14},
                                           {"no color", with("Birthday:"), "Number: 13", 4},
                                           {"no colon", with("Birthday"), "Number: 13", 4},
                                           {"colon in caption", with("Birth: day:255"), "Number: 13", 4},
                                           {"negative", with("Birthday:-1"), "Number: 6", 4},
                                           {"too large", with("Birthday:16777216"), "Number: 6", 4},
                                           {"NUL bytes", with(std::string(20, '\0')), "Number: 13", 4},
                                           {"empty", "", "Number: 62", 0}}) {
        SCOPED_TRACE(row.name);
        const TemporaryFolder fresh;
        fresh.put(File, row.file);
        dialogs.expect("ReadMarkerColors");
        ReadMarkerColors();
        EXPECT_NE(dialogs.shown().back().text.find(row.error), std::string::npos) << dialogs.shown().back().text;
        EXPECT_FALSE(MarkersLoaded);
        EXPECT_EQ(std::count(MarkerColor.begin(), MarkerColor.end(), 0u), static_cast<int>(14 - row.read));
        dialogs.expect("Marker Colors Saved.");
        EXPECT_TRUE(SaveMarkerColors());
        EXPECT_EQ(fresh.backups(), row.file);
        dialogs.verify();
    }
}

TEST_F(CategoriesTest, SurviveBeingCutAtEveryByte) {
    const UnsyncedDisk quick;
    for (std::size_t length = 1; length < Full.size() - 1; ++length) {
        SCOPED_TRACE(length);
        const TemporaryFolder fresh;
        const std::string cut = Full.substr(0, length);
        fresh.put(File, cut);
        const bool faulty = length <= Full.find("Vacation:") + std::string("Vacation:").size();
        if (faulty) dialogs.expect("ReadMarkerColors");
        ReadMarkerColors();
        dialogs.expect("Marker Colors Saved.");
        SaveHiddenMarks = true;
        EXPECT_TRUE(SaveMarkerColors());
        EXPECT_TRUE(fresh.get(File).starts_with(cut) || fresh.backups() == cut);
        dialogs.verify();
    }
}

TEST_F(CategoriesTest, LinesThatWouldBeWrittenOtherwiseAreKeptInBackup) {
    std::string file = WithoutStars;
    std::erase(file, '\r');
    read(file);
    dialogs.expect("Marker Colors Saved.");
    EXPECT_TRUE(SaveMarkerColors());
    EXPECT_EQ(folder.backups(), "") << "bare line feeds hold nothing";
    const std::string blank = "Account Payable: 128" + WithoutStars.substr(std::string("Account Payable:128").size());
    read(blank);
    dialogs.expect("Backup");
    EXPECT_TRUE(SaveMarkerColors());
    EXPECT_EQ(folder.backups(), blank);
}

TEST_F(CategoriesTest, MissingFileLeavesTheCaptions) {
    dialogs.expect("Number: 53");
    ReadMarkerColors();
    EXPECT_EQ(MarkerCaption[9], "Meeting");
    EXPECT_EQ(CategoryOfColor(0), std::nullopt);
}

TEST_F(CategoriesTest, FailedSaveIsReportedAndKeepsTheOldLabels) {
    read(Full);
    auto edited = MarkerLabels;
    edited[9].caption = "Talk";
    std::filesystem::remove(folder.path() / File);
    std::filesystem::create_directories(folder.path() / File / "in the way");
    dialogs.expect("SaveMarkerColors");
    EXPECT_FALSE(SaveEditedLabels(edited));
    EXPECT_EQ(MarkerLabels[9].caption, "Meeting");
}
