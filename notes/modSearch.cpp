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
}  // namespace

// -- The phrase -----------------------------------------------------------------------------------------------------

PhraseFinder FinderInNotes(std::string_view phrase) {
    const std::string small = LowerCase(phrase);
    std::string capital = UpperCase(phrase);
    for (std::size_t i = 0; i < capital.size(); ++i)
        if (DecodedLineBreaks({&capital[i], 1}) != std::string(1, capital[i])) capital[i] = small[i];
    return {small, EncodedLineBreaks(capital)};
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
    const PhraseFinder finder = FinderInNotes(phrase);
    std::vector<std::string> found;
    for (std::size_t i = 0; i < notes.texts.size(); ++i)
        if (finder.find(notes.texts[i]) != std::string::npos) found.push_back(notes.dates[i]);
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
    return NotesWindowOpen && Notes.openDate == *date;
}

void DeleteListedNotes(int year, const std::vector<std::string>& keys) {
    if (NotesWindowOpen && NoteEditor.close && !NoteEditor.close()) return;
    if (const auto slot = ReadNotesOfYear(year)) DeleteNotes(*slot, keys);
}
