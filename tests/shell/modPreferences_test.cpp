// The preferences' lines: read, applied, written back, and never lost.
#include "shell/modPreferences.h"

#include <gtest/gtest.h>

#include "base/diskio.h"
#include "base/errors.h"
#include "forms/printer.h"
#include "tests/support/dialogs.h"
#include "tests/support/disk.h"
#include "tests/support/folder.h"

namespace {
const std::string File = "UserPreferences.txt";
const std::string Full =
    "first\r\nShared Directory:f\r\nCompany Name:A: B\r\nCompany Address 1:1 Main St\r\nCompany Address 2:\r\n"
    "Company City, State Zip:Z\xFCrich\r\nCompany Phone:555\r\nCompany Fax:556\r\nCompany Website:http://x.y\r\n"
    "Company Email:a@b\r\nAuto Complete Word:False\r\nAuto Start Position:4\r\nShow FUT:True\r\nMinimize FUT:True\r\n"
    "second\r\nDefault Printer:Laser\r\nthird\r\nFrequent Terms File:Work.fut\r\nLoad FUT Position:True\r\n"
    "FUT Position:Left=11820:Top=3045.5:Height=6345\r\n";

/// The file with one line (counted from 1) replaced.
std::string With(int line, const std::string& text) {
    std::string file = Full;
    std::size_t start = 0;
    for (int i = 1; i < line; ++i) start = file.find('\n', start) + 1;
    return file.replace(start, file.find('\r', start) - start, text);
}

struct PreferencesTest : testing::Test {
    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    void read(const std::string& bytes) {
        folder.put(File, bytes);
        GetUserPreferences();
    }
};
}  // namespace

TEST_F(PreferencesTest, AreReadByPositionAndWrittenBackAsTheyStand) {
    read(Full);
    EXPECT_EQ(Preferences.companyName, "A: B");
    EXPECT_EQ(Preferences.companyCity, "Z\xFCrich");
    EXPECT_EQ(Preferences.networkShare, "f");
    EXPECT_FALSE(AutoCompleteOn);
    EXPECT_EQ(AutoStartPosition, 4);
    EXPECT_TRUE(Preferences.showTerms && Preferences.minimizeTerms && Preferences.loadTermsPlace);
    EXPECT_EQ(CurrentTermsFile, "Work.fut");
    EXPECT_EQ(Preferences.termsPlace, (TermsPlace{11820, 3045.5, 2805, 6345}));
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "Backup"));
    EXPECT_TRUE(SaveUserPreferences());
    EXPECT_EQ(folder.get(File), Full);
}

TEST_F(PreferencesTest, KeepExtraLinesAndReplaceOnlyTheirOwn) {
    read(Full + "one more\r\n" + Full);
    EXPECT_TRUE(SaveTermsPreferences(true, 0, false, false));
    EXPECT_TRUE(SaveTermsPlace({-150, 30, 4000, 5000.5}));
    std::string wanted = With(20, "FUT Position:Left=-150:Top=30:Width=4000:Height=5000.5");
    for (const auto& [old, now] : {std::pair{"Word:False", "Word:True"},
                                   {"Start Position:4", "Start Position:0"},
                                   {"Show FUT:True", "Show FUT:False"},
                                   {"Minimize FUT:True", "Minimize FUT:False"}})
        wanted.replace(wanted.find(old), std::string(old).size(), now);
    EXPECT_EQ(folder.get(File), wanted + "one more\r\n" + Full);
    EXPECT_TRUE(AutoCompleteOn);
    EXPECT_EQ(folder.backups(), "");
}

TEST_F(PreferencesTest, ReportFaultsKeepWhatWasReadBeforeAndLoseNothing) {
    struct Row {
        const char* name;
        std::string file;
        const char* error;
        std::string share;  // what line 2 gave
        int start;          // what line 12 gave
    };
    for (const Row& row : std::vector<Row>{{"no boolean", With(11, "Auto Complete Word:maybe"), "Number: 13", "f", 2},
                                           {"no number", With(12, "Auto Start Position:4x"), "Number: 13", "f", 2},
                                           {"negative", With(12, "Auto Start Position:-1"), "Number: 6", "f", 2},
                                           {"too large", With(12, "Auto Start Position:32768"), "Number: 6", "f", 2},
                                           {"shorter than its key", With(13, "Show"), "Number: 13", "f", 4},
                                           {"place", With(20, "FUT Position:Left=1:Top=x"), "Number: 13", "f", 4},
                                           {"NUL bytes", std::string(40, '\0'), "Number: 9", "", 2},
                                           {"empty", "", "Number: 9", "", 2}}) {
        SCOPED_TRACE(row.name);
        const TemporaryFolder fresh;
        fresh.put(File, row.file);
        dialogs.expect(row.error);
        GetUserPreferences();
        EXPECT_EQ(Preferences.networkShare, row.share);
        EXPECT_EQ(Preferences.autoStart, row.start);
        if (!row.file.empty()) dialogs.expect("Backup");
        if (row.name == std::string("place")) dialogs.expect(row.error);
        EXPECT_TRUE(SaveTermsPreferences(true, 7, true, false));
        EXPECT_EQ(fresh.backups(), row.file);
        EXPECT_EQ(Preferences.autoStart, 7);
        dialogs.verify();
    }
}

TEST_F(PreferencesTest, SurviveBeingCutAtEveryByte) {
    const UnsyncedDisk quick;
    int reports = 0;
    const Dialogs scripted = SetDialogs({[&](const std::string&, Buttons, const std::string& title) {
                                             reports += title == "Program Error";
                                             return Answer::Ok;
                                         },
                                         {}});
    for (std::size_t length = 0; length < Full.size(); ++length) {
        SCOPED_TRACE(length);
        const TemporaryFolder fresh;
        const std::string cut = Full.substr(0, length);
        fresh.put(File, cut);
        reports = 0;
        GetUserPreferences();
        const bool faulty = length <= Full.rfind("FUT Position:") || cut.ends_with('=');
        EXPECT_EQ(reports, faulty ? 1 : 0);
        EXPECT_TRUE(SaveUserPreferences());
        EXPECT_TRUE(fresh.get(File).starts_with(cut) || fresh.backups() == cut);
    }
    SetDialogs(scripted);
}

TEST_F(PreferencesTest, MissingFileIsReportedAndTheNextSaveWritesAllLines) {
    dialogs.expect("Number: 53");
    GetUserPreferences();
    dialogs.expectInput("Setting Network Share Drive", " E: ");
    ChangeNetworkShare();
    GetUserPreferences();
    EXPECT_EQ(Preferences.networkShare, "e");
}

TEST_F(PreferencesTest, NetworkShareTakesALetterOnly) {
    read(Full);
    for (const auto& [answer, message] : {std::pair{"3d", true}, {"\xE9", true}, {"  ", false}, {"", false}}) {
        dialogs.expectInput("Enter the Network Share Drive letter", answer);
        if (message) dialogs.expect("Could not determine drive letter.");
        ChangeNetworkShare();
    }
    EXPECT_EQ(folder.get(File), Full);
    dialogs.expectInput("Enter the Network Share Drive letter", "Q");
    ChangeNetworkShare();
    EXPECT_EQ(folder.get(File), With(2, "Shared Directory:q"));
}

TEST_F(PreferencesTest, FailedSaveChangesNothing) {
    read(Full);
    SetDisk({[](const Path&) { return Full; }, [](const Path&, std::string_view) { throw Error(DiskFull); }, {}, {}});
    dialogs.expect("SaveUserPreferences");
    EXPECT_FALSE(SaveDefaultTermsFile("Home.fut"));
    SetDisk({});
    EXPECT_EQ(Preferences.termsFile, "Work.fut");
    EXPECT_TRUE(SaveUserPreferences());
    EXPECT_EQ(folder.get(File), Full);
}

TEST_F(PreferencesTest, SelectTheDefaultPrinter) {
    std::string selected;
    const auto noDocument = [](const std::string&) { return std::unique_ptr<Canvas>(); };
    const auto names = [] { return std::vector<std::string>{"Ink", "Laser"}; };
    const auto select = [&](const std::string& name) { selected = name; };
    const auto before = SetPrinter({names, select, {}, noDocument});
    read(Full);
    EXPECT_EQ(selected, "Laser");
    SetPrinter({[]() -> std::vector<std::string> { throw Error(PrinterFault); }, {}, {}, noDocument});
    dialogs.expect("Printer error.");
    read(With(12, "Auto Start Position:9"));
    EXPECT_EQ(AutoStartPosition, 9);
    SetPrinter(before);
}
