// Frequently used terms: the lists, one file each ("Work.fut"), and the commands that change them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "notes/modComplete.h"

struct TermsState {
    std::string file;                 // the list that the tables hold, "Work.fut"; "" before the first reading
    std::vector<std::string> terms;   // in the order of the file: what completes words
    std::vector<std::string> listed;  // the terms in list order: what is shown and saved
    std::vector<std::string> files;   // the names of all lists, in list order
    int fileIndex = 0;                // the place of the current list among the files
    bool newFile = false;             // the current list has just been created
    bool choosing = false;            // the window shows the files in place of the terms
    bool windowOpen = false;
    std::string draggedTerm;  // the term on its way into a note; "" while none is
    TermIndex index;          // over `terms`
};
extern TermsState Terms;

inline auto& lstFUT = Terms.listed;
inline auto& lstMoreFUT = Terms.files;
inline int& TermsFileIndex = Terms.fileIndex;
inline bool& NewTermsFile = Terms.newFile;
inline bool& TermsWindowOpen = Terms.windowOpen;
inline std::string& DraggedTerm = Terms.draggedTerm;
inline int TermCount() { return static_cast<int>(Terms.terms.size()); }

/// The window follows the tables: called whenever the lists, their name or what is shown has changed.
extern std::function<void()> ShowTerms;

/// The extension of the files of terms.
inline constexpr const char* TermsExtension = ".fut";
/// The name of a list without its extension.
std::string TermsListName(const std::string& file);

// -- Files ------------------------------------------------------------------------------------------------------------

/// Reads the current list (CurrentTermsFile); a missing file is created empty. "File not found." where there is no
/// current list. Reports under its own name.
void ReadFrequentlyUsedTerms();

/// Reads the terms as the program, the editor or the terms window opens. Without a current list there is nothing to
/// read; a list that has been deleted meanwhile gives way to the default one.
void ReadTermsOnOpening();

/// Rewrites the file of the list that the tables hold. An empty list is refused with a message. False if nothing was
/// written; failures are reported under its own name.
bool SaveFrequentlyUsedTerms();

/// Asks for a name and makes an empty list of it the current one. An existing list is taken over after a question; its
/// file keeps its terms until the first new one is saved. False if nothing was created.
bool CreateNewFUTFile();

/// True, after a message, if the list's name (without extension) cannot be a file's name on every system.
bool IllegalFileName(std::string_view name);

/// Shows all lists for a choice. "No file exists." where there are none.
void ShowTermsFiles();
/// Makes the chosen file the current list; "No list selected." for a place that is none.
void ChooseTermsFile(int index);
/// The list after the current one, the first after the last.
void NextTermsFile();
/// Deletes the current list; the default one is refused.
void DeleteTermsFile();
/// Makes the current list the one that the program opens first.
void MakeTermsFileDefault();

// -- Terms ------------------------------------------------------------------------------------------------------------
// Each change is saved and read back. What is saved must hold only characters of the files.

/// Adds each line of the text as a term, without the blanks around it. False, after a message, if there is none or it
/// could not be saved.
bool AddTerms(std::string_view text);
/// Puts the text in the place of a term. False, after a message, for an empty text or if it could not be saved.
bool ChangeTerm(const std::string& term, std::string_view text);
/// Removes these terms.
void RemoveTerms(const std::vector<std::string>& terms);
/// Removes all terms after a question. The file keeps them: an empty list is not written.
void ClearTerms();

enum class TermCase { Lower, Proper, Upper };
/// Shows all terms in that case; the file keeps them as they are until the next change is saved.
void ConvertTerms(TermCase to);

/// Switches completion for this run.
void ToggleAutoComplete();
/// The caption of the button that switches it.
std::string AutoCompleteCaption();

/// What is appended to a note that ends with `last` ('\n' for a line break, 0 for an empty note) for a term that is
/// inserted from the list, or dropped on the note.
std::string InsertedTerm(char last, std::string_view term);
std::string DroppedTerm(char last, std::string_view term);
