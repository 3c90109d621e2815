// Help topics: what files mean, and the search through them.
#include "notes/modHelp.h"

#include "tests/support/planner.h"

namespace {
std::string Topics() {
    std::string all;
    for (std::size_t i = 0; i < HelpTitles.size(); ++i) all += "[" + HelpTitles[i] + "]" + HelpTexts[i];
    return all;
}
}  // namespace

TEST(Help, FilesAsTheyAreRead) {
    using Row = std::tuple<const char*, std::string, std::string>;
    for (const auto& [name, file, topics] :
         {Row{"three topics", "*Getting Started:\r\nAt 7:00.\r\nGo.\r\n*Notes:\r\nb\r\n*Last:\r\nc\r\n",
              "[Getting Started]At 7:00.\r\nGo.[Notes]b[Last]c\r\n"},
          Row{"bare line feeds", "*A:\na\n*B:\nb", "[A]a[B]b"}, Row{"no topics", "Just a text.\r\n", ""},
          Row{"no bytes", "", ""}, Row{"text before the first", "Preface\r\n*A:\r\na", "[A]a"},
          Row{"empty titles", "*:\r\na\r\n*:\r\n*:\r\nc", "[]a[][]c"}, Row{"stars alone", "**\r\n*", "[][][]"},
          Row{"no colon", "*Lost\r\n*A:\r\na", "[Lost][A]a"}, Row{"text after the colon", "*A: a", "[A] a"}}) {
        SCOPED_TRACE(name);
        const TemporaryFolder folder;
        folder.put("Help_Topics.txt", file);
        ReadHelpTopics();
        EXPECT_EQ(Topics(), topics);
    }
}

TEST(Help, MissingFileAndTooManyTopicsFail) {
    const TemporaryFolder folder;
    int shown = 0;
    ShowHelpTopics = [&shown] { ++shown; };
    EXPECT_THROW(ReadHelpTopics(), Error);
    std::string many;
    for (std::size_t i = 0; i <= MostHelpTopics; ++i) many += "*T:\r\n\r\n";
    folder.put("Help_Topics.txt", many);
    EXPECT_THROW(ReadHelpTopics(), Error);
    EXPECT_EQ(HelpTitles.size(), MostHelpTopics);
    EXPECT_EQ(shown, 1);
    ShowHelpTopics = {};
}

TEST(Help, SearchGoesFromHitToHitAndThenBeginsAgain) {
    const TemporaryFolder folder;
    folder.put("Help_Topics.txt",
               "*One:\r\nThe calendar. View it.\r\n*Two:\r\nCALENDAR VIEW, calendar view\r\n*Three:\r\naaa \xC4rger");
    ReadHelpTopics();
    for (int times = 0; times < 2; ++times) {
        EXPECT_EQ(FindInHelp("Calendar View"), (HelpHit{1, 0}));
        EXPECT_EQ(FindInHelp("Calendar View"), (HelpHit{1, 15}));
        EXPECT_EQ(FindInHelp("Calendar View"), std::nullopt);
    }
    EXPECT_EQ(FindInHelp("AA"), (HelpHit{2, 0}));
    EXPECT_EQ(FindInHelp("AA"), (HelpHit{2, 1})) << "hits may overlap";
    StartHelpSearchOver();
    EXPECT_EQ(FindInHelp("\xE4RGER"), (HelpHit{2, 4})) << "letters with accents ignore case too";
    EXPECT_EQ(FindInHelp("\xE4RGER"), std::nullopt);
}

TEST(Help, InstalledTopicsHaveTitlesAndTexts) {
    const TemporaryFolder folder;
    SetDataFolder(TASMORO_DATA);
    ReadHelpTopics();
    std::set<std::string> titles;
    for (std::size_t i = 0; i < HelpTitles.size(); ++i) {
        SCOPED_TRACE(HelpTitles[i]);
        EXPECT_TRUE(titles.insert(HelpTitles[i]).second) << "two topics have the same title";
        EXPECT_EQ(HelpTitles[i].find_first_of("\r\n"), std::string::npos) << "no colon ends the title";
        EXPECT_GT(HelpTexts[i].size(), 60U);
        EXPECT_EQ(Replaced(HelpTexts[i], CrLf, "").find_first_of("\r\n"), std::string::npos);
    }
}
