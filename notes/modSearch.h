// Searching the notes of a year for a phrase, and the phrases searched so far.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "calendar/modGrid.h"

/// Looks for a phrase in notes as they stand in the tables, in one line each: the codes that stand for line breaks
/// there are met by no letter.
PhraseFinder FinderInNotes(std::string_view phrase);

/// What the search window remembers for the whole run.
struct SearchState {
    std::vector<std::string> history;  // the phrases, each once, in the order of their first search
    std::string kind;                  // what is searched: "Notes" while the window is open
};
extern SearchState Search;

/// Keeps a new phrase that is not empty.
void RememberPhrase(const std::string& phrase);

/// The dates of the slot's notes, in list order, that lie in the month (1..12; 0 for all).
std::vector<std::string> NoteDatesInMonth(Year slot, int month);

/// Those of them whose notes hold the phrase.
std::vector<std::string> NoteDatesWithPhrase(Year slot, int month, std::string_view phrase);

/// "Search Phrase appears on 3 dates."
std::string SearchReport(std::size_t dates);

/// Makes January 1 of the year the selected date and reads that year's notes afresh; a year that neither slot holds
/// is loaded into the first. Returns the slot; nothing if the user kept the view as it is, with the note open in it.
std::optional<Year> ReadNotesOfYear(int year);

/// Selects the date of a listed key and opens its note; "Couldn't find note to open." where it has none any more. True
/// if the editor shows it.
bool OpenListedNote(int year, std::string_view key);

/// Deletes all notes of the listed dates of the year. A note open in the editor is closed first, through its prompt; if
/// the user keeps it, nothing is deleted.
void DeleteListedNotes(int year, const std::vector<std::string>& keys);
