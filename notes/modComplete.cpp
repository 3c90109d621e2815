// Completing words while a note is typed.
#include "notes/modComplete.h"

#include <algorithm>
#include <numeric>

#include "base/state.h"
#include "base/text.h"

CompletionState Completion;

namespace {
const ClearedAtStart ClearCompletion([] { Completion = {}; });
}

// -- The index ------------------------------------------------------------------------------------------------------

namespace {
constexpr std::size_t LongestRunKey = 3;

/// The first three characters, or as many as there are, as one number.
std::uint32_t RunKey(std::string_view capitals) {
    const std::string_view beginning = capitals.substr(0, LongestRunKey);
    std::uint32_t key = static_cast<std::uint32_t>(beginning.size());
    for (const char c : beginning) key = key << 8 | static_cast<unsigned char>(c);
    return key;
}
}  // namespace

TermIndex::TermIndex(const std::vector<std::string>& terms) {
    const std::size_t count = terms.size();
    std::vector<std::string> capitals(count);
    std::transform(terms.begin(), terms.end(), capitals.begin(), [](const auto& term) { return UpperCase(term); });
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), 0u);
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return capitals[a] < capitals[b]; });
    firsts_.resize(2 * count);
    keys_.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        longest_ = std::max(longest_, terms[order[i]].size());
        firsts_[count + i] = order[i];
        for (std::size_t length = 0; length <= std::min(LongestRunKey, terms[order[i]].size()); ++length) {
            const auto run = runs_.try_emplace(RunKey(capitals[order[i]].substr(0, length)), Run{i, i, count}).first;
            run->second.end = i + 1;
            run->second.first = std::min(run->second.first, order[i]);
        }
        keys_.push_back(std::move(capitals[order[i]]));
    }
    for (std::size_t i = count; i-- > 1;) firsts_[i] = std::min(firsts_[2 * i], firsts_[2 * i + 1]);
}

/// The least position in the list among the sorted terms from..to-1.
std::size_t TermIndex::firstOf(std::size_t from, std::size_t to) const {
    std::size_t least = keys_.size();
    for (from += keys_.size(), to += keys_.size(); from < to; from /= 2, to /= 2) {
        if (from % 2 == 1) least = std::min(least, firsts_[from++]);
        if (to % 2 == 1) least = std::min(least, firsts_[--to]);
    }
    return least;
}

std::optional<std::size_t> TermIndex::find(std::string_view fragment) const {
    if (fragment.size() > longest_) return {};
    const std::string capitals = UpperCase(fragment);
    const auto run = runs_.find(RunKey(capitals));
    if (run == runs_.end()) return {};
    if (capitals.size() <= LongestRunKey) return run->second.first;
    const auto at = [&](std::size_t i) { return keys_.begin() + static_cast<std::ptrdiff_t>(i); };
    const auto begin = std::lower_bound(at(run->second.begin), at(run->second.end), capitals);
    const auto end =
        std::partition_point(begin, at(run->second.end), [&](const auto& key) { return key.starts_with(capitals); });
    if (begin == end) return {};
    return firstOf(static_cast<std::size_t>(begin - keys_.begin()), static_cast<std::size_t>(end - keys_.begin()));
}

std::string AdaptedTerm(std::string_view term, std::string_view fragment) {
    if (term.starts_with(fragment)) return std::string(term);
    if (fragment == LowerCase(fragment)) return LowerCase(term);
    if (fragment == ProperCase(fragment)) return ProperCase(term);
    if (fragment == UpperCase(fragment)) return UpperCase(term);
    return std::string(term);
}

// -- Typing ---------------------------------------------------------------------------------------------------------

namespace {
bool PartsWords(char c) { return c == ' ' || c == '\n'; }

std::string TextBetween(int from, int to, const CharacterAt& at) {
    std::string text;
    for (int position = from; position < to; ++position) text += at(position);
    return text;
}

/// The word that was typed up to the caret; "" if none is followed, or one longer than any term.
std::string Fragment(const TermIndex& index, int caret, const CharacterAt& at) {
    const int length = caret - WordStart;
    if (!WordTracking || length < 1 || length > static_cast<int>(index.longest())) return {};
    // The text may have changed since the word began.
    if (WordStart > 0 && !PartsWords(at(WordStart - 1))) return {};
    std::string fragment = TextBetween(WordStart, caret, at);
    return fragment.find('\n') == std::string::npos ? fragment : std::string();
}

/// Follows the word from one typed character to the next; the caret stands behind it.
void FollowWord(const TermIndex& index, int caret, const CharacterAt& at) {
    const bool begins = caret == 1 || (caret > 1 && PartsWords(at(caret - 2)));
    if (!begins) return;
    // Behind a blank a new word begins, unless the words so far go on in a term of several words.
    const std::string words = Fragment(index, caret, at);
    if (!words.empty() && index.find(words)) return;
    WordTracking = true;
    WordStart = caret - 1;
}
}  // namespace

bool OfferTerm(const TermIndex& index, const std::vector<std::string>& terms, int startPosition, int caret, int count,
               const CharacterAt& at) {
    for (int typed = caret - count + 1; typed <= caret; ++typed) FollowWord(index, typed, at);
    const char next = at(caret);
    if (next != '\0' && !PartsWords(next)) WordTracking = false;
    TypedFragment = Fragment(index, caret, at);
    TypedLength = static_cast<int>(TypedFragment.size());
    if (TypedLength < 1 || TypedLength <= startPosition) return false;
    const auto found = index.find(TypedFragment);
    // A term that is typed in full leaves nothing to offer.
    if (!found || terms[*found].size() == TypedFragment.size()) return false;
    SuggestedTerm = AdaptedTerm(terms[*found], TypedFragment);
    return true;
}

void SuggestionShown() {
    SuggestionShowing = true;
    SuggestionEnd = WordStart + static_cast<int>(SuggestedTerm.size());
}

void SuggestionGone() {
    SuggestionShowing = false;
    SuggestedTerm.clear();
}
