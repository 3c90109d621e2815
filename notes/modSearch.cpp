// Searching the notes of a year.
#include "notes/modSearch.h"

#include <algorithm>
#include <map>

#include "base/dates.h"
#include "base/dialogs.h"
#include "base/state.h"
#include "base/text.h"
#include "notes/modNotes.h"

SearchState Search;

namespace {
const ClearedAtStart ClearSearch([] { Search = {}; });

using FoldTable = std::array<char, 256>;

/// Small letters for capital ones. The codes that stand for line breaks in a stored note become the break itself, so
/// that no letter of a phrase equals them.
const FoldTable& NoteFold() {
    static const FoldTable table = [] {
        FoldTable fold{};
        for (std::size_t code = 0; code < fold.size(); ++code) fold[code] = LowerCase(static_cast<char>(code));
        fold[0xD5] = '\r';
        fold[0xD2] = '\n';
        return fold;
    }();
    return table;
}
}  // namespace

// -- The phrase -----------------------------------------------------------------------------------------------------

PhraseFinder::PhraseFinder(std::string_view phrase) : folded_(LowerCase(phrase)) {
    // The last place of each character before the phrase's end; a character that is not in it is stepped over whole.
    for (std::size_t code = 0; code < step_.size(); ++code) {
        step_[code] = folded_.size();
        for (std::size_t i = 0; i + 1 < folded_.size(); ++i)
            if (folded_[i] == NoteFold()[code]) step_[code] = folded_.size() - 1 - i;
    }
}

bool PhraseFinder::isIn(std::string_view note) const {
    const std::size_t length = folded_.size();
    if (length == 0) return true;
    const FoldTable& fold = NoteFold();
    for (std::size_t end = length; end <= note.size();) {
        const auto last = static_cast<unsigned char>(note[end - 1]);
        if (fold[last] == folded_.back() &&
            std::equal(folded_.begin(), folded_.end(), note.data() + end - length,
                       [&](char wanted, char c) { return wanted == fold[static_cast<unsigned char>(c)]; }))
            return true;
        end += step_[last];
    }
    return false;
}

// -- The notes of a year --------------------------------------------------------------------------------------------

void RememberPhrase(const std::string& phrase) {
    const auto& known = Search.history;
    if (!phrase.empty() && std::find(known.begin(), known.end(), phrase) == known.end())
        Search.history.push_back(phrase);
}

std::vector<std::string> NoteDatesInMonth(Year slot, int month) {
    std::vector<std::string> dates = Notes.years[slot].list;
    if (month == 0) return dates;
    std::erase_if(dates, [&](const std::string& key) {
        const auto date = DateOfNoteKey(Notes.years[slot].year, key);
        return !date || MonthOf(*date) != month;
    });
    return dates;
}

std::vector<std::string> NoteDatesWithPhrase(Year slot, int month, std::string_view phrase) {
    const NotesOfYear& notes = Notes.years[slot];
    const PhraseFinder finder(phrase);
    std::vector<std::string> found;
    for (std::size_t i = 0; i < notes.texts.size(); ++i)
        if (finder.isIn(notes.texts[i])) found.push_back(notes.dates[i]);
    std::sort(found.begin(), found.end());
    std::vector<std::string> dates = NoteDatesInMonth(slot, month);
    std::erase_if(dates, [&](const std::string& key) { return !std::binary_search(found.begin(), found.end(), key); });
    return dates;
}

std::string SearchReport(std::size_t dates) {
    if (dates == 0) return "Search Phrase was not found.";
    if (dates == 1) return "Search Phrase appears on 1 date";
    return "Search Phrase appears on " + std::to_string(dates) + " dates.";
}

std::optional<Year> ReadNotesOfYear(int year) {
    const Date date = MakeDate(year, 1, 1);
    const Year slot = SlotOf(date);
    if (YearOfSlot(slot) != year) return {};
    SelectDate(date);
    ReadNotes(slot);
    return slot;
}

bool OpenListedNote(int year, std::string_view key) {
    const auto slot = ReadNotesOfYear(year);
    if (!slot) return false;
    const auto& list = Notes.years[*slot].list;
    const auto date = DateOfNoteKey(year, key);
    if (!date || std::find(list.begin(), list.end(), key) == list.end()) {
        ShowMessage("Couldn't find note to open.");
        return false;
    }
    SelectDate(*date);
    DisplayThisNote();
    return NotesWindowOpen;
}

void DeleteListedNotes(int year, const std::vector<std::string>& keys) {
    if (NotesWindowOpen && NoteEditor.close && !NoteEditor.close()) return;
    if (const auto slot = ReadNotesOfYear(year)) DeleteNotes(*slot, keys);
}
