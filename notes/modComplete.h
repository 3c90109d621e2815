// Completing words while a note is typed: which term a fragment brings, and when one is offered.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Finds the first term of a list, in the list's own order, that begins with a fragment. It searches: the order of the
/// list does not matter, nor does its length.
class TermIndex {
  public:
    TermIndex() = default;
    explicit TermIndex(const std::vector<std::string>& terms);

    /// The position in the list of the first term that begins with the fragment, ignoring case; nothing if none does.
    std::optional<std::size_t> find(std::string_view fragment) const;
    /// The length of the longest term.
    std::size_t longest() const { return longest_; }

  private:
    /// A run of keys_ with one beginning, and the least position of its terms in the list.
    struct Run {
        std::size_t begin = 0;
        std::size_t end = 0;
        std::size_t first = 0;
    };
    std::size_t firstOf(std::size_t from, std::size_t to) const;

    std::unordered_map<std::uint32_t, Run> runs_;  // by the first one, two and three characters

    std::vector<std::string> keys_;    // the terms in capitals, sorted by code
    std::vector<std::size_t> firsts_;  // a tree of least positions over keys_; leaves are its second half
    std::size_t longest_ = 0;
};

/// The term in the case of the fragment: as it stands when it begins with exactly the fragment; otherwise small,
/// proper or capital as the fragment is; a fragment of mixed case leaves the term as it stands.
std::string AdaptedTerm(std::string_view term, std::string_view fragment);

/// The character at a position of the text (from 0): '\n' between lines, 0 before the text and behind it.
using CharacterAt = std::function<char(int position)>;

/// The word that is being typed, and what is offered for it. Positions are counted from 0.
struct CompletionState {
    bool wordTracking = false;       // the caret is at the end of a word that began at wordStart
    int wordStart = 0;               // of its first character
    int typedLength = 0;             // characters typed of it
    std::string typedFragment;       // those characters
    std::string suggestedTerm;       // the term that is offered
    bool suggestionShowing = false;  // the rest of a term is in the text and selected
    int suggestionEnd = 0;           // just behind the offered completion
};
extern CompletionState Completion;

inline bool& WordTracking = Completion.wordTracking;
inline int& WordStart = Completion.wordStart;
inline int& TypedLength = Completion.typedLength;
inline std::string& TypedFragment = Completion.typedFragment;
inline std::string& SuggestedTerm = Completion.suggestedTerm;
inline bool& SuggestionShowing = Completion.suggestionShowing;
inline int& SuggestionEnd = Completion.suggestionEnd;

/// `count` characters have just been typed; the caret stands behind the last of them. True if SuggestedTerm is to
/// take the place of the text from WordStart to the caret, with all behind TypedLength selected. Looks at no more of
/// the text than the longest term is long. More than `startPosition` characters must have been typed.
bool OfferTerm(const TermIndex& index, const std::vector<std::string>& terms, int startPosition, int caret, int count,
               const CharacterAt& at);

/// The offered term was put into the text.
void SuggestionShown();
/// The offered completion was taken, or is no longer there.
void SuggestionGone();
