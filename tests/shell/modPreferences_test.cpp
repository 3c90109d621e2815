// The preferences' lines: read, applied, written back, and never lost.
#include "shell/modPreferences.h"

#include "forms/printer.h"
#include "tests/support/planner.h"

namespace {
const std::string File = "UserPreferences.txt";
const std::string Full =
    "first\r\nShared Directory:f\r\nCompany Name:A: B\r\nCompany Address 1:1 Main St\r\nCompany Address 2:\r\n"
    "Company City, State Zip:Z\xFCrich\r\nCompany Phone:555\r\nCompany Fax:556\r\nCompany Website:http://x.y\r\n"
    "Company Email:a@b\r\nAuto Complete Word:False\r\nAuto Start Position:4\r\nShow FUT:True\r\nMinimize FUT:True\r\n"
    "second\r\nDefault Printer:Laser\r\nthird\r\nFrequent Terms File:Work.fut\r\nLoad FUT Position:True\r\n"
    "FUT Position:Left=11820:Top=3045.5:Height=6345\r\n";

/// The file with the line of a key replaced.
std::string With(const std::string& key, const std::string& line) {
    const auto start = Full.find("\n" + key) + 1;
    return std::string(Full).replace(start, Full.find('\r', start) - start, line);
}

struct PreferencesTest : PlannerTest {
    void read(const std::string& bytes) {
        folder.put(File, bytes);
        GetUserPreferences();
    }
};
}  // namespace

TEST_F(PreferencesTest, AreReadByPositionAndOnlyTheirOwnLinesAreReplacedUnlessTheSaveFails) {
    read(Full + "more\r\n");
    EXPECT_EQ(Preferences.companyName, "A: B");
    EXPECT_EQ(CurrentTermsFile, "Work.fut");
    EXPECT_EQ(Preferences.termsPlace, (TermsPlace{11820, 3045.5, 2805, 6345})) << "the width is the one before";
    EXPECT_TRUE(!AutoCompleteOn && AutoStartPosition == 4 && Preferences.showTerms && Preferences.loadTermsPlace);
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "Backup"));

    SetDisk({.write = [](const Path&, std::string_view) { throw Error(DiskFull); }});
    dialogs.expect("SaveUserPreferences");
    EXPECT_FALSE(SaveDefaultTermsFile("Home.fut"));
    SetDisk({});
    EXPECT_TRUE(Preferences.termsFile == "Work.fut" && folder.get(File) == Full + "more\r\n");
    EXPECT_TRUE(SaveTermsPlace({-150, 30, 4000, 5000.5}));
    EXPECT_EQ(folder.get(File), With("FUT", "FUT Position:Left=-150:Top=30:Width=4000:Height=5000.5") + "more\r\n");
    for (const char* place : {"Left=nan", "Top=-1e30", "Width=inf"}) {
        folder.put(File, With("FUT", std::string("FUT Position:") + place));
        dialogs.expect("Number: 6");
        GetUserPreferences();
    }
    EXPECT_EQ(Preferences.termsPlace, TermsPlace({-150, 30, 4000, 5000.5}));
}

TEST_F(PreferencesTest, ReportFaultsKeepWhatWasReadBeforeAndLoseNothing) {
    const auto readStartPosition = [] {
        GetUserPreferences();
        return Preferences.autoStart;
    };
    const auto save = [&] {
        if (std::filesystem::file_size(DataPath(File)) > 0) dialogs.expect("Backup");
        const bool saved = SaveTermsPreferences(true, 7, true, false);
        return saved && AutoStartPosition == 7;  // all lines are there and can be read
    };
    expectKept(
        File,
        {{With("Auto C", "Auto Complete Word:maybe"), "Number: 13", 2},
         {With("Auto S", "Auto Start Position:4x"), "Type mismatch (line 12 of the file \"UserPreferences.txt\")", 2},
         {With("Auto S", "Auto Start Position:-1"), "Number: 6", 2},
         {With("Auto S", "Auto Start Position:32768"), "Number: 6", 2},
         {With("Show", "Show"), "Number: 13", 4},
         {std::string(40, '\0'), "Number: 9", 2},
         {"", "Subscript out of range (line 1 of the file", 2}},
        readStartPosition, save);
}

TEST_F(PreferencesTest, SurviveBeingCutAtEveryByte) {
    ForEachCut(Full, [&](const std::string& cut, const TemporaryFolder& fresh) {
        fresh.put(File, cut);
        const bool faulty = cut.size() <= Full.rfind("FUT Position:") || cut.ends_with('=');
        if (faulty) dialogs.expect("GetUserPreferences");
        GetUserPreferences();
        if (faulty && !cut.empty()) dialogs.expect("Backup");
        EXPECT_TRUE(SaveUserPreferences());
        EXPECT_TRUE(fresh.get(File).starts_with(cut) || fresh.backups() == cut);
        dialogs.verify();
    });
}

TEST_F(PreferencesTest, NetworkShareTakesALetterOnlyAndMakesAMissingFile) {
    dialogs.expect("Number: 53");
    GetUserPreferences();
    for (const auto& [answer, message] : {std::pair{"3d", true}, {"\xE9", true}, {"  ", false}, {" E: ", false}}) {
        EXPECT_FALSE(folder.has(File));
        dialogs.expectInput("Setting Network Share Drive", answer);
        if (message) dialogs.expect("Could not determine drive letter.");
        ChangeNetworkShare();
    }
    GetUserPreferences();
    EXPECT_EQ(Preferences.networkShare, "e");
}

TEST_F(PreferencesTest, PrinterIsSelectedAndItsFailureStopsNothing) {
    std::string selected;
    std::vector<std::string> installed{"Ink", "Laser"};
    const auto before = SetPrinter({[&] { return installed.empty() ? throw Error(PrinterFault) : installed; },
                                    [&](const std::string& name) { selected = name; },
                                    {},
                                    [](const std::string&) { return std::unique_ptr<Canvas>(); }});
    read(Full);
    EXPECT_EQ(selected, "Laser");
    installed.clear();
    dialogs.expect("Printer error.");
    read(With("Auto S", "Auto Start Position:9"));
    EXPECT_EQ(AutoStartPosition, 9);
    SetPrinter(before);
}
