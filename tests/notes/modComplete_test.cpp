// Completing words: which term is offered for what is typed, character by character.
#include "notes/modComplete.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "tests/support/folder.h"

namespace {
const std::vector<std::string> Terms{"Agenda", "budget", "iPad", "iPhone", "New Jersey", "New York", "\xC4rzte"};
const std::vector<std::string> Unsorted{"zebra two", "apple", "Zebra one", "apply"};

/// Types the keys one after another at the caret ('<' is Backspace) and returns the text after the last one with the
/// offered part in brackets.
std::string Typed(const std::vector<std::string>& terms, std::string text, std::size_t caret, std::string_view keys,
                  int startPosition) {
    Completion = {};
    const TermIndex index(terms);
    bool offered = false;
    for (const char key : keys) {
        offered = false;
        if (key == '<') {
            text.erase(--caret, 1);
            continue;
        }
        text.insert(caret++, 1, key);
        if (key == '\n') continue;
        offered = OfferTerm(index, terms, startPosition, static_cast<int>(caret), 1, [&](int at) {
            return at < 0 || at >= static_cast<int>(text.size()) ? '\0' : text[static_cast<std::size_t>(at)];
        });
    }
    if (!offered) return text;
    return text.substr(0, static_cast<std::size_t>(WordStart)) +
           SuggestedTerm.substr(0, static_cast<std::size_t>(TypedLength)) + "[" +
           SuggestedTerm.substr(static_cast<std::size_t>(TypedLength)) + "]" + text.substr(caret);
}

TEST(Completion, OffersTheFirstTermThatFitsInTheCaseThatIsTyped) {
    const TemporaryFolder folder;
    struct Row {
        const char* before;  // the caret stands at "|"
        const char* keys;
        int startPosition;
        const char* expected;
    };
    for (const Row& row :
         {// in the case that is typed
          Row{"|", "ne", 0, "ne[w jersey]"}, Row{"|", "Ne", 0, "Ne[w Jersey]"}, Row{"|", "NE", 0, "NE[W JERSEY]"},
          Row{"|", "iPh", 0, "iPh[one]"}, Row{"|", "nEw", 0, "New[ Jersey]"}, Row{"|", "\xE4r", 0, "\xE4r[zte]"},
          // from the start position on, while something fits
          Row{"|", "b", 0, "b[udget]"}, Row{"|", "bu", 2, "bu"}, Row{"|", "bud", 2, "bud[get]"},
          Row{"|", "budget", 0, "budget"}, Row{"|", "bux", 0, "bux"}, Row{"|", "bux<d", 0, "bud[get]"},
          // where a word begins and none goes on
          Row{"a |", "bu", 0, "a bu[dget]"}, Row{"a\n|", "bu", 0, "a\nbu[dget]"}, Row{"(|", "bu", 0, "(bu"},
          Row{"b|", "u", 0, "bu"}, Row{"|dget", "bu", 0, "budget"}, Row{"| x", "bu", 0, "bu[dget] x"},
          Row{"|\nx", "bu", 0, "bu[dget]\nx"},
          // over a blank, not over a line break
          Row{"|", "new ", 0, "new [jersey]"}, Row{"|", "new y", 0, "new y[ork]"}, Row{"|", "new b", 0, "new b[udget]"},
          Row{"|", "new\ny", 0, "new\ny"}}) {
        std::string text = row.before;
        const auto caret = text.find('|');
        text.erase(caret, 1);
        EXPECT_EQ(Typed(Terms, text, caret, row.keys, row.startPosition), row.expected) << row.before << row.keys;
    }
    EXPECT_EQ(Typed(Unsorted, "", 0, "ze", 0), "ze[bra two]");
    EXPECT_EQ(Typed(Unsorted, "", 0, "app", 0), "app[le]");
    EXPECT_EQ(Typed({}, "", 0, "app", 0), "app");
}

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
}  // namespace
