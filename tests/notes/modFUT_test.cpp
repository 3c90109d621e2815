// Lists of terms: their files, and that no term gets lost with them.
#include "notes/modFUT.h"

#include "shell/modPreferences.h"
#include "tests/support/planner.h"

namespace {
struct TermsTest : PlannerTest {
    void open(const std::string& file, const std::string& bytes) {
        folder.put(file, bytes);
        Preferences.termsFile = CurrentTermsFile = file;
        ReadFrequentlyUsedTerms();
    }
};

TEST_F(TermsTest, AreSavedInListOrderWithoutALastLineBreakAndAnEmptyListIsNot) {
    open("Work.fut", "Zebra\r\napple\r\nMango");
    EXPECT_EQ(Terms.terms.front(), "Zebra");  // completes in the order of the file
    EXPECT_TRUE(AddTerms("  kiwi \r\n\r\n Banana"));
    EXPECT_EQ(folder.get("Work.fut"), "apple\r\nBanana\r\nkiwi\r\nMango\r\nZebra");
    EXPECT_TRUE(ChangeTerm("Mango", " mangos "));
    RemoveTerms({"apple", "Zebra"});
    ConvertTerms(TermCase::Upper);
    EXPECT_EQ(lstFUT.front(), "BANANA");
    dialogs.expect("No term has been added to save.");
    EXPECT_FALSE(AddTerms(" \r\n "));
    dialogs.expect("This will delete all items", Answer::No);
    ClearTerms();
    EXPECT_EQ(lstFUT.size(), 3u);
    dialogs.expect("This will delete all items", Answer::Yes).expect("There are no Frequently Used Terms to save.");
    ClearTerms();
    EXPECT_EQ(folder.get("Work.fut"), "Banana\r\nkiwi\r\nmangos");
}

TEST_F(TermsTest, NewListsAreMadeUnderNamesThatEverySystemTakes) {
    open("Work.fut", "old");
    for (const char* name :
         {"a/b", "a\\b", "a:b", "*", "?", "<a", "a>", "a|b", "CON", "nul", "Lpt1.x", "a\"b", "a\tb", "..", ".hidden"}) {
        dialogs.expectInput("Starting New Frequent Terms File", name);
        dialogs.expect("Action Cancelled.");
        EXPECT_FALSE(CreateNewFUTFile()) << name;
    }
    const auto create = [&](const char* name, std::optional<Answer> overwrite) {
        dialogs.expectInput("Please enter a name", name);
        if (overwrite) dialogs.expect("File already exists. Overwrite?", *overwrite);
        return CreateNewFUTFile();
    };
    EXPECT_FALSE(create("", {}) || create("   ", {}));
    folder.put("Home.fut", "dentist");
    EXPECT_FALSE(create("home", Answer::No));
    EXPECT_EQ(CurrentTermsFile, "Work.fut");
    EXPECT_TRUE(create("console", {}));
    EXPECT_EQ(folder.get("console.fut"), "");
    EXPECT_TRUE(create("Home", Answer::Yes));
    EXPECT_EQ(folder.get("Home.fut"), "dentist");  // until the first term is saved
    dialogs.expect("Backup");
    EXPECT_TRUE(AddTerms("plumber"));
    EXPECT_EQ(folder.get("Home.fut"), "plumber");
    EXPECT_EQ(folder.backups(), "dentist");
}

TEST_F(TermsTest, ListsAreChosenCycledAndDeleted) {
    folder.put("b.fut", "of b");
    folder.put("C.FUT", "of c");
    folder.put("c.txt", "no list");
    open("a.fut", "of a");
    for (const char* next : {"b.fut", "C.FUT", "a.fut"}) {
        CurrentTermsFile = "a.fut";  // as reading the preferences again does: what is shown counts
        NextTermsFile();
        EXPECT_EQ(CurrentTermsFile, next);
    }
    dialogs.expect("You cannot delete the Default");
    DeleteTermsFile();
    ShowTermsFiles();
    EXPECT_EQ(lstMoreFUT, (std::vector<std::string>{"a.fut", "b.fut", "C.FUT"}));
    dialogs.expect("No list selected.");
    ChooseTermsFile(-1);
    ChooseTermsFile(1);
    EXPECT_EQ(lstFUT, std::vector<std::string>{"of b"});
    CurrentTermsFile = "a.fut";
    DeleteTermsFile();
    EXPECT_TRUE(lstFUT.empty());
    ReadTermsOnOpening();  // the deleted list is not made again
    EXPECT_EQ(CurrentTermsFile, "a.fut");
    EXPECT_FALSE(folder.has("b.fut"));
}

TEST_F(TermsTest, GoBackToTheirOwnFileWhateverThePreferencesNameMeanwhile) {
    open("Home.fut", "dentist");
    folder.put("Work.fut", "budget");
    CurrentTermsFile = "Work.fut";
    EXPECT_TRUE(AddTerms("electrician"));
    EXPECT_EQ(folder.get("Work.fut"), "budget");
    EXPECT_EQ(folder.get("Home.fut"), "dentist\r\nelectrician");
    std::filesystem::remove(folder.path() / "Home.fut");  // behind the program's back
    EXPECT_TRUE(AddTerms("plumber"));
    EXPECT_EQ(folder.get("Home.fut"), "dentist\r\nelectrician\r\nplumber");
    for (const char* name : {"../outside.fut", "NUL.fut"}) {
        CurrentTermsFile = name;
        dialogs.expect("Action Cancelled.");
        ReadFrequentlyUsedTerms();
        EXPECT_EQ(TermCount(), 0);
    }
    CurrentTermsFile.clear();
    dialogs.expect("File not found.");
    ReadFrequentlyUsedTerms();
}

TEST_F(TermsTest, AreJoinedToANoteWithTheBlanksTheyNeed) {
    for (const char before : {'\0', ' ', '\n', 'x'}) {
        EXPECT_EQ(InsertedTerm(before, "vet"), before == 'x' ? " vet " : "vet ");
        EXPECT_EQ(DroppedTerm(before, "vet"), before == '\0' || before == '\n' ? "vet" : " vet");
    }
}
}  // namespace
