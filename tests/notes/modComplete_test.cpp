// Completing words: which term of a list fits. What is then offered, the editor shows.
#include "notes/modComplete.h"

#include <gtest/gtest.h>

#include "base/text.h"

TEST(Completion, IndexFindsWhatAWalkThroughTheListFinds) {
    std::vector<std::string> terms;
    for (unsigned seed = 1; terms.size() < 500; seed = seed * 1103515245 + 12345)
        terms.push_back(std::string(1 + seed % 4, static_cast<char>('a' + seed / 64 % 3)) +
                        static_cast<char>((seed & 0x10000 ? 'A' : 'a') + seed / 1024 % 4));
    const TermIndex index(terms);
    for (const char* fragment : {"", "a", "A", "aab", "bB", "ccd", "ccccd", "d", "cccccc"}) {
        std::optional<std::size_t> walked;
        for (std::size_t i = terms.size(); i-- > 0;)
            if (StartsWithIgnoringCase(terms[i], fragment)) walked = i;
        EXPECT_EQ(index.find(fragment), walked) << fragment;
    }
}
