// The notes of this year and the next: their tables, their files, and the note that is open in the editor.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/modCalendar.h"
#include "calendar/modGrid.h"

/// The notes of one year. Index i of the three tables describes the same note; they stand in the file's order.
struct NotesOfYear {
    int year = 0;                    // the year whose file this is; 0 before the first reading
    std::vector<std::string> texts;  // in one line each: codes 213 and 210 stand for line breaks
    std::vector<std::string> dates;  // "mm/dd/yy"
    std::vector<std::string> cells;  // "MMCCRR"
    int current = -1;                // the note open in the editor; -1 while its date has none
    Grid<bool> flags;                // the cell's date has a note
    std::vector<std::string> list;   // each date that has notes, once, in list order: the order of the file
};

struct NotesState {
    std::array<NotesOfYear, 2> years;  // by Year
    Date openDate;                     // the date whose note the editor shows, while it is open
    bool changed = false;              // the editor holds text that is not saved
    bool loading = false;              // a note is being put into the editor: no edit
    bool deletePending = false;        // the next save writes the tables only and takes no text from the editor
    bool windowOpen = false;
    bool searchActive = false;  // the note was opened by a search, or its window is still open
    std::string originalText;   // what was put into the editor or saved from it last, lines parted by CR LF
    int originalLength = 0;     // of it, in characters, a line break counting as one
    std::string searchPhrase;   // the phrase searched last
};
extern NotesState Notes;

inline auto& NoteTexts = Notes.years[ThisYear].texts;
inline auto& NextNoteTexts = Notes.years[NextYear].texts;
inline auto& NoteDates = Notes.years[ThisYear].dates;
inline auto& NextNoteDates = Notes.years[NextYear].dates;
inline auto& NoteCells = Notes.years[ThisYear].cells;
inline auto& NextNoteCells = Notes.years[NextYear].cells;
inline int& CurrentNote = Notes.years[ThisYear].current;
inline int& NextCurrentNote = Notes.years[NextYear].current;
inline auto& NoteFlags = Notes.years[ThisYear].flags;
inline auto& NextNoteFlags = Notes.years[NextYear].flags;
inline auto& lstNotes = Notes.years[ThisYear].list;
inline auto& lstNotes2 = Notes.years[NextYear].list;
inline bool& NotesChanged = Notes.changed;
inline bool& NoteLoading = Notes.loading;
inline bool& NoteDeletePending = Notes.deletePending;
inline bool& NotesWindowOpen = Notes.windowOpen;
inline bool& SearchActive = Notes.searchActive;
inline std::string& NoteOriginalText = Notes.originalText;
inline std::string& SearchPhrase = Notes.searchPhrase;

inline int NoteCount() { return static_cast<int>(NoteTexts.size()); }
inline int NextNoteCount() { return static_cast<int>(NextNoteTexts.size()); }

/// Reads the notes of the slot's year. No file means no notes. A bad line (shorter than 16 characters, no cell) is
/// reported under the procedure's name; the notes before it are held, and the file counts as not fully read.
void ReadThisYearsNotes();
void ReadNextYearsNotes();

/// Stores the editor's text as the note of the date it shows (unless NoteDeletePending is set), rewrites the year's
/// file and shows "Notes Saved". Notes that are empty or blank are left out. False if nothing was written: the text
/// was refused, the user went back, or the disk failed, which is reported under the procedure's name.
bool SaveThisYearsNotes();
bool SaveNextYearsNotes();

/// Saves the editor's text into the year of the date it shows, and reads that year again. False as above.
bool SaveOpenNote();

/// Removes every note of these dates ("mm/dd/yy") from the slot's tables and file, and reads the year again.
void DeleteNotes(Year slot, const std::vector<std::string>& dates);

/// Reads the notes of the slot again.
inline void ReadNotes(Year slot) { slot == ThisYear ? ReadThisYearsNotes() : ReadNextYearsNotes(); }

/// The date of a note's key in the file of a year; nothing for a key that is no date of that year.
std::optional<Date> DateOfNoteKey(int year, std::string_view key);

/// The note of a date in its slot's tables, its lines parted by CR LF; several lines of the file for one date follow
/// one another. "" where there is none.
std::string NoteOf(Year slot, Date date);

/// Opens the editor on the note of SelectedDate. An open editor is closed first, through its prompt; kept open by the
/// user, it stays and nothing is opened.
void DisplayThisNote();

/// Asks "The Notes have been changed..." where the open note has unsaved text, before the month, the view or the
/// program changes; sets SaveCancelled for Cancel. Fills AskAboutNotes.
void AskAboutOpenNote(bool programEnds);

// -- Filled by the window ------------------------------------------------------------------------------------------

/// The editor as the store needs it. Without a window the calls do nothing, and the editor is closed.
struct NoteEditorCalls {
    /// Shows the editor with a caption and the note's text.
    std::function<void(const std::string& caption, const std::string& text)> open;
    /// Closes it through its prompt; false if the user keeps it.
    std::function<bool()> close;
    /// Its text for the file, lines parted by CR LF; nothing if it holds characters that cannot be kept, which has been
    /// told then.
    std::function<std::optional<std::string>()> textToSave;
};
extern NoteEditorCalls NoteEditor;
