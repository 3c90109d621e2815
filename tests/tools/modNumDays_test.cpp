// Weekdays of a period.
#include "tools/modNumDays.h"

#include "tests/support/planner.h"

namespace {
std::vector<std::string> EntriesOf(const Occurrences& found) {
    std::vector<std::string> entries;
    ListOccurrences(found, [&entries](std::string_view entry) { entries.emplace_back(entry); });
    return entries;
}
using NumDaysTest = PlannerTest;
}  // namespace

TEST_F(NumDaysTest, CountsBothEnds) {
    using Row = std::tuple<const char*, const char*, int, const char*, const char*>;
    for (const auto& [start, end, weekday, text, first] :
         {Row{"1/1/2009", "1/31/2009", 0, "Sunday found 4 times", "Sunday 1/4/2009"},
          Row{"1/1/2009", "1/31/2009", 4, "Thursday found 5 times", "Thursday 1/1/2009"},
          Row{"1/4/2009", "1/4/2009", 0, "Sunday found 1 times", "Sunday 1/4/2009"},
          Row{"1/6/2009", "1/7/2009", 1, "Monday found 0 times", ""},
          Row{"1/31/2009", "1/1/2009", 6, "Saturday found 0 times", ""},
          Row{"2/1/2008", "3/7/2009", 5, "Friday found 58 times", "Friday 2/1/2008"},
          Row{"12/24/9999", "12/31/9999", 5, "Friday found 2 times", "Friday 12/24/9999"}}) {
        NumDays = {DateOfText(start), DateOfText(end), weekday};
        const Occurrences found = CountWeekdays();
        EXPECT_EQ(OccurrencesText(found), text) << start;
        const auto entries = EntriesOf(found);
        EXPECT_EQ(entries.empty() ? "" : entries.front(), first);
        EXPECT_FALSE(found.tooMany);
    }
}

TEST_F(NumDaysTest, StopsAtTheMostTheListShows) {
    const Date monday = MakeDate(1500, 1, 1);
    for (const int more : {0, 1}) {
        NumDays = {monday, monday + 7 * (MostOccurrences - 1 + more), WeekdayOf(monday) - 1};
        const Occurrences found = CountWeekdays();
        EXPECT_EQ(found.tooMany, more == 1);
        const auto entries = EntriesOf(found);
        ASSERT_EQ(entries.size(), 31999U);
        for (int week = 0; week < MostOccurrences; ++week)
            ASSERT_EQ(entries[static_cast<std::size_t>(week)], "Monday " + ShortDate(monday + 7 * week));
    }
}
