// The notes of this year and the next.
#include "notes/modNotes.h"

#include <algorithm>
#include <utility>

#include "base/dialogs.h"
#include "base/files.h"
#include "base/lineBreaks.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modShell.h"
#include "marks/modSaveChanges.h"
#include "shell/modErrors.h"

NotesState Notes;
NoteEditorCalls NoteEditor;

namespace {
const ClearedAtStart ClearNotes([] { Notes = {}; });

constexpr const char* NotesFile = "Notes.dat";
constexpr std::size_t TextAt = 16;  // a line: "mm/dd/yy:MMCCRR:" and the text

// -- Reading --------------------------------------------------------------------------------------------------------

void ListDate(NotesOfYear& notes, const std::string& key) {
    const auto place = std::lower_bound(notes.list.begin(), notes.list.end(), key, InListOrder());
    if (place == notes.list.end() || *place != key) notes.list.insert(place, key);
}

void TakeLine(Year slot, std::string_view line) {
    if (line.size() < TextAt) throw Error(InvalidCall);
    NotesOfYear& notes = Notes.years[slot];
    const std::string key(line.substr(0, 8));
    Cell cell = CellOfText(line.substr(9, 6));
    // The cell in the file is where the date stood when it was written; the date itself knows better.
    if (const auto date = DateOfNoteKey(notes.year, key)) {
        cell = CellOf(*date);
        notes.flags[cell] = true;
    }
    notes.dates.push_back(key);
    notes.cells.push_back(CellText(cell));
    notes.texts.emplace_back(line.substr(TextAt));
    ListDate(notes, key);
}

void Read(Year slot) {
    NotesOfYear& notes = Notes.years[slot];
    notes = {};
    notes.year = YearOfSlot(slot);
    const Path folder = YearFolder(notes.year);
    if (!FolderExists(DataFolder(), folder.filename().string()) || !FileExists(folder, NotesFile)) return;
    const Path file = PathInFolder(folder, NotesFile);
    bool whole = true;
    ReadDataLines(file, [&](std::string_view line, int) {
        TakeLine(slot, line);
        whole = whole && line[8] == ':' && line[15] == ':';
    });
    if (!whole) MarkNotFullyRead(file);  // what stands in place of the colons is held nowhere
}

/// What the editor's text is compared with from now on.
void SetOriginalText(std::string text) {
    Notes.originalLength = static_cast<int>(text.size() - std::count(text.begin(), text.end(), '\r'));
    NoteOriginalText = std::move(text);
}

// -- Saving ---------------------------------------------------------------------------------------------------------

/// Puts the text in place of whatever these tables hold for the open date: one note, or a new one.
void StoreText(NotesOfYear& notes, const std::string& text) {
    const std::string key = FormatDate(Notes.openDate, "mm/dd/yy");
    const auto found = std::find(notes.dates.begin(), notes.dates.end(), key);
    notes.current = static_cast<int>(found - notes.dates.begin());
    const auto current = static_cast<std::size_t>(notes.current);
    if (found == notes.dates.end()) {
        notes.dates.push_back(key);
        notes.cells.emplace_back();
        notes.texts.emplace_back();
        ListDate(notes, key);
    }
    const Cell cell = CellOf(Notes.openDate);
    notes.cells[current] = CellText(cell);
    notes.texts[current] = EncodedLineBreaks(text);
    notes.flags[cell] = true;
    // Further lines of the same date were part of what the editor showed.
    for (std::size_t i = current + 1; i < notes.dates.size(); ++i)
        if (notes.dates[i] == key) notes.texts[i].clear();
}

std::string BytesOf(const NotesOfYear& notes) {
    std::vector<std::size_t> order(notes.texts.size());
    std::size_t size = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i] = i;
        size += TextAt + notes.texts[i].size() + 2;
    }
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return CompareInListOrder(notes.dates[a], notes.dates[b]) < 0;
    });
    std::string bytes;
    bytes.reserve(size);
    for (const std::size_t i : order) {
        if (Trimmed(notes.texts[i]).empty()) continue;
        bytes.append(notes.dates[i]).append(":").append(notes.cells[i]).append(":");
        bytes.append(notes.texts[i]).append(CrLf);
    }
    return bytes;
}

void WriteNotes(const NotesOfYear& notes) {
    const Path folder = YearFolder(notes.year);
    MakeFolder(folder);
    const std::string told = SaveDataFile(PathInFolder(folder, NotesFile), BytesOf(notes));
    ShowMessage(told.empty() ? "Notes Saved" : std::string("Notes Saved") + CrLf + CrLf + told);
}

/// Clears NoteDeletePending however the save ends: the next save is the editor's own again.
class DeleteEnds {
  public:
    DeleteEnds() = default;
    DeleteEnds(const DeleteEnds&) = delete;
    DeleteEnds& operator=(const DeleteEnds&) = delete;
    ~DeleteEnds() { NoteDeletePending = false; }
};

/// Only a slot that holds its year may be looked up, and written to that year's file.
void HoldYear(Year slot) {
    if (Notes.years[slot].year != YearOfSlot(slot)) ReadNotes(slot);
}

bool Save(Year slot) {
    const DeleteEnds ends;
    HoldYear(slot);
    if (NoteDeletePending) {
        WriteNotes(Notes.years[slot]);
        return true;
    }
    if (YearOf(Notes.openDate) != YearOfSlot(slot)) throw Error(InvalidCall);
    const auto text = NoteEditor.textToSave ? NoteEditor.textToSave() : std::string();
    if (!text || !MayTurnIntoLineBreaks(*text, "note")) return false;
    // What could not be written must not go out with the next save: the user may yet give it up.
    NotesOfYear changed = Notes.years[slot];
    StoreText(changed, *text);
    WriteNotes(changed);
    Notes.years[slot] = std::move(changed);
    SetOriginalText(*text);
    NotesChanged = false;
    return true;
}

bool SaveAndReport(const char* procedure, Year slot) {
    bool saved = false;
    Reporting(procedure, [&] { saved = Save(slot); });
    return saved;
}

bool SaveNotes(Year slot) { return slot == ThisYear ? SaveThisYearsNotes() : SaveNextYearsNotes(); }

// -- The open note --------------------------------------------------------------------------------------------------

void OpenEditor(Year slot) {
    NotesOfYear& notes = Notes.years[slot];
    Notes.openDate = SelectedDate;
    NoteLoading = true;
    const auto found = std::find(notes.dates.begin(), notes.dates.end(), SelectedDateText);
    notes.current = found == notes.dates.end() ? -1 : static_cast<int>(found - notes.dates.begin());
    SetOriginalText(NoteOf(slot, SelectedDate));
    if (NoteEditor.open) NoteEditor.open("Notes for " + FormatDate(SelectedDate, "mmmm dd, yyyy"), NoteOriginalText);
    NoteLoading = false;
    NotesChanged = false;
}
}  // namespace

void ReadThisYearsNotes() {
    Reporting("ReadThisYearsNotes", [] { Read(ThisYear); });
}
void ReadNextYearsNotes() {
    Reporting("ReadNextYearsNotes", [] { Read(NextYear); });
}
bool SaveThisYearsNotes() { return SaveAndReport("SaveThisYearsNotes", ThisYear); }
bool SaveNextYearsNotes() { return SaveAndReport("SaveNextYearsNotes", NextYear); }

bool SaveOpenNote() {
    const Year slot = SlotOf(Notes.openDate);
    const bool saved = SaveNotes(slot);
    if (saved) ReadNotes(slot);
    return saved;
}

void DeleteNotes(Year slot, const std::vector<std::string>& dates) {
    HoldYear(slot);
    NotesOfYear& notes = Notes.years[slot];
    for (std::size_t i = 0; i < notes.dates.size(); ++i) {
        if (std::find(dates.begin(), dates.end(), notes.dates[i]) == dates.end()) continue;
        notes.texts[i].clear();
        notes.current = static_cast<int>(i);
    }
    NoteDeletePending = true;
    SaveNotes(slot);
    ReadNotes(slot);
}

std::optional<Date> DateOfNoteKey(int year, std::string_view key) {
    if (key.size() != 8 || key[2] != '/' || key[5] != '/' || key.substr(6) != TwoDigits(year % 100)) return {};
    const auto digits = [&](std::size_t at) { return (key[at] - '0') * 10 + (key[at + 1] - '0'); };
    for (const std::size_t at : {0u, 1u, 3u, 4u})
        if (key[at] < '0' || key[at] > '9') return {};
    if (!IsDate(year, digits(0), digits(3))) return {};
    return MakeDate(year, digits(0), digits(3));
}

std::string NoteOf(Year slot, Date date) {
    const NotesOfYear& notes = Notes.years[slot];
    const std::string key = FormatDate(date, "mm/dd/yy");
    std::string text;
    for (std::size_t i = 0; i < notes.dates.size(); ++i) {
        if (notes.dates[i] != key) continue;
        if (!text.empty()) text += CrLf;
        text += DecodedLineBreaks(notes.texts[i]);
    }
    return text;
}

void DisplayThisNote() {
    Reporting("DisplayThisNote", [] {
        const Date date = SelectedDate;
        if (NotesWindowOpen && NoteEditor.close && !NoteEditor.close()) return;
        const Year slot = SlotOf(date);
        SelectDate(date);
        HoldYear(slot);
        Tell(Shell.showInPickers, SelectedDate);
        OpenEditor(slot);
    });
}

void AskAboutOpenNote(bool programEnds) {
    if (!NotesWindowOpen || !NotesChanged) return;
    const Answer answer = Ask("The Notes have been changed. Do you want to save those changes?", Buttons::YesNoCancel,
                              "Notes Have Changed");
    if (answer == Answer::Cancel) SaveCancelled = true;
    if (answer == Answer::No) {
        NotesChanged = false;
        if (NoteEditor.close) NoteEditor.close();
    }
    if (answer != Answer::Yes) return;
    const Year slot = SlotOf(Notes.openDate);
    const bool saved = SaveNotes(slot);
    if (!saved) SaveCancelled = true;  // what was not written must not go down with the window
    if (saved && !programEnds) ReadNotes(slot);
}
