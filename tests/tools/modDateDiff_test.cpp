// Differences of dates in every interval.
#include "tools/modDateDiff.h"

#include "tests/support/planner.h"

TEST(DateDiff, CountsEachInterval) {
    struct Row {
        const char* start;
        const char* end;
        std::array<const char*, 8> texts;  // in the order of the table
    };
    for (const Row& row :
         {Row{"12/31/2008", "1/1/2009", {"1", "1", "1", "", "1", "24", "1,440", "86,400"}},
          Row{"1/1/2009", "12/31/2008", {"-1", "-1", "-1", "", "-1", "-24", "-1,440", "-86,400"}},
          Row{"1/1/2009", "12/31/2009", {"", "3", "11", "52", "364", "8,736", "524,160", "31,449,600"}},
          Row{"2/29/2008", "2/28/2009", {"1", "4", "12", "52", "365", "8,760", "525,600", "31,536,000"}},
          Row{"1/20/2009", "1/7/2009", {"", "", "", "-1", "-13", "-312", "-18,720", "-1,123,200"}},
          Row{"5/5/2026", "5/5/2026", {"", "", "", "", "", "", "", ""}},
          Row{"0100-01-01",
              "12/31/9999",
              {"9,899", "39,599", "118,799", "516,557", "3,615,899", "86,781,576", "5,206,894,560",
               "312,413,673,600"}}}) {
        for (std::size_t i = 0; i < Intervals.size(); ++i)
            EXPECT_EQ(DifferenceText(DateDifference(DateOfText(row.start), DateOfText(row.end), Intervals[i].code)),
                      row.texts[i])
                << row.start << " " << Intervals[i].name;
    }
}
