// Frequently used terms: the lists and their files.
#include "notes/modFUT.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "base/dialogs.h"
#include "base/files.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"
#include "shell/modErrors.h"
#include "shell/modPreferences.h"

TermsState Terms;
std::function<void()> ShowTerms;

namespace {
const ClearedAtStart ClearTables([] { Terms = {}; });

void TermsChanged() {
    if (ShowTerms) ShowTerms();
}

/// The names of all lists in the data folder.
std::vector<std::string> TermsFiles() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(DataFolder())) {
        const std::string name = TextOfPath(entry.path().filename());
        if (entry.is_regular_file() && name.size() > 4 &&
            EqualIgnoringCase(Middle(name, name.size() - 3), TermsExtension))
            names.push_back(name);
    }
    std::sort(names.begin(), names.end(), InListOrder());
    return names;
}

/// The preferences may have named another list since this one was read: commands are about the list that is shown.
void KeepToShownList() {
    if (!Terms.file.empty()) CurrentTermsFile = Terms.file;
}

void ListFiles() {
    KeepToShownList();
    Terms.files = TermsFiles();
    const auto current = std::find_if(Terms.files.begin(), Terms.files.end(),
                                      [](const auto& name) { return EqualIgnoringCase(name, CurrentTermsFile); });
    Terms.fileIndex = current == Terms.files.end() ? -1 : static_cast<int>(current - Terms.files.begin());
}

/// Takes over the terms as the file has them; the list shown is in list order whatever the file's order is.
void HoldTerms(std::vector<std::string> terms) {
    Terms.listed = terms;
    if (!std::is_sorted(Terms.listed.begin(), Terms.listed.end(), InListOrder()))
        std::stable_sort(Terms.listed.begin(), Terms.listed.end(), InListOrder());
    Terms.index = TermIndex(terms);
    Terms.terms = std::move(terms);
    Terms.newFile = false;
}

void Read() {
    HoldTerms({});
    Terms.file = CurrentTermsFile;
    // A name out of the preferences may be anything, even one that leads out of the data folder.
    if (IllegalFileName(TermsListName(CurrentTermsFile))) return;
    if (!FileExists(DataFolder(), CurrentTermsFile)) SaveDataFile(DataPath(CurrentTermsFile), {});
    std::vector<std::string> terms;
    ReadDataLines(DataPath(CurrentTermsFile), [&](std::string_view line, int) { terms.emplace_back(line); });
    HoldTerms(std::move(terms));
}

std::string Joined(const std::vector<std::string>& terms) {
    std::string bytes;
    for (std::size_t i = 0; i < terms.size(); ++i) bytes.append(i == 0 ? "" : CrLf).append(terms[i]);
    return bytes;
}

/// Every change of the list goes to the file at once, and comes back from it. False if it was not saved.
bool SaveAndRead() {
    const bool saved = SaveFrequentlyUsedTerms();
    ReadFrequentlyUsedTerms();
    return saved;
}

void Open(const std::string& file) {
    CurrentTermsFile = file;
    Terms.choosing = false;
    ReadFrequentlyUsedTerms();
    Reporting("ShowTermsFiles", ListFiles);
}
}  // namespace

std::string TermsListName(const std::string& file) { return file.size() < 4 ? file : file.substr(0, file.size() - 4); }

// -- Files ------------------------------------------------------------------------------------------------------------

void ReadFrequentlyUsedTerms() {
    if (CurrentTermsFile.empty()) {
        HoldTerms({});
        ShowMessage("File not found.");
    } else {
        Reporting("ReadFrequentlyUsedTerms", Read);
    }
    Terms.choosing = false;
    TermsChanged();
}

void ReadTermsOnOpening() {
    if (NewTermsFile) return;  // its file may still hold the terms of the list that it replaces
    if (CurrentTermsFile.empty()) CurrentTermsFile = Preferences.termsFile;
    if (CurrentTermsFile.empty()) return;
    if (!FileExists(DataFolder(), CurrentTermsFile) && FileExists(DataFolder(), Preferences.termsFile))
        CurrentTermsFile = Preferences.termsFile;
    ReadFrequentlyUsedTerms();
}

bool SaveFrequentlyUsedTerms() {
    if (Terms.listed.empty()) {
        ShowMessage("There are no Frequently Used Terms to save.");
        return false;
    }
    return Reporting("SaveFrequentlyUsedTerms", [] {
        KeepToShownList();
        if (CurrentTermsFile.empty()) throw Error(FileNotFound);
        if (IllegalFileName(TermsListName(CurrentTermsFile))) throw Error(PathFileAccess);
        TellOfBackup(SaveDataFile(DataPath(CurrentTermsFile), Joined(Terms.listed)));
    });
}

bool IllegalFileName(std::string_view name) {
    if (name.find_first_of("/\\:*?<>|") != std::string_view::npos) {
        ShowMessage(std::string("Action Cancelled. File Name cannot include any of ") + CrLf +
                    "the following characters: / \\ : * ? < > |");
        return true;
    }
    static constexpr std::array Reserved{"CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4",
                                         "COM5", "COM6", "COM7", "COM8", "COM9", "LPT1", "LPT2", "LPT3",
                                         "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9"};
    const std::string_view stem = Trimmed(name.substr(0, name.find('.')));
    const bool device =
        std::any_of(Reserved.begin(), Reserved.end(), [&](auto r) { return EqualIgnoringCase(stem, r); });
    const bool unprintable = std::any_of(name.begin(), name.end(), [](char c) { return (c & 0xE0) == 0 || c == '"'; });
    constexpr std::size_t LongestName = 200;  // with the extension and a copy's date every system takes it
    if (!device && !unprintable && !stem.empty() && name.size() <= LongestName) return false;
    ShowMessage("Action Cancelled. \"" + std::string(name.substr(0, LongestName)) + "\" cannot be the name of a file.");
    return true;
}

bool CreateNewFUTFile() {
    bool created = false;
    Reporting("CreateNewFUTFile", [&] {
        const std::string answer =
            AskForText("Please enter a name for the Frequent Terms File.", "Starting New Frequent Terms File");
        const std::string name(Trimmed(answer));
        if (name.empty() || IllegalFileName(name)) return;
        const std::string file = name + TermsExtension;
        const bool exists = FileExists(DataFolder(), file);
        if (exists && !AskBeforeLoss("File already exists. Overwrite?", "Duplicate Frequent Terms File Exists")) return;
        if (!exists) SaveDataFile(DataPath(file), {});
        CurrentTermsFile = file;
        Terms.file = file;
        HoldTerms({});
        Terms.newFile = true;
        Terms.choosing = false;
        ListFiles();
        created = true;
    });
    if (created) TermsChanged();
    return created;
}

void ShowTermsFiles() {
    if (!Reporting("ShowTermsFiles", ListFiles)) return;
    if (Terms.files.empty()) {
        ShowMessage("No file exists.");
        return;
    }
    Terms.choosing = true;
    TermsChanged();
}

void ChooseTermsFile(int index) {
    if (index < 0 || index >= static_cast<int>(Terms.files.size()))
        ShowMessage("No list selected.");
    else
        Open(Terms.files[static_cast<std::size_t>(index)]);
}

void NextTermsFile() {
    if (!Reporting("NextTermsFile", ListFiles) || Terms.files.empty()) return;
    Open(Terms.files[static_cast<std::size_t>(Terms.fileIndex + 1) % Terms.files.size()]);
}

void DeleteTermsFile() {
    Reporting("DeleteTermsFile", [] {
        KeepToShownList();
        if (TermsFiles().empty()) {
            ShowMessage("No file to delete.");
            return;
        }
        if (EqualIgnoringCase(CurrentTermsFile, Preferences.termsFile)) {
            ShowMessage(std::string("You cannot delete the Default Frequent Terms List. You can") + CrLf +
                        "delete all the items in the list from under the menu \"Edit\".");
            return;
        }
        TellOfBackup(DeleteDataFile(DataPath(CurrentTermsFile)));
        HoldTerms({});
        Terms.fileIndex = 0;
        TermsChanged();
    });
}

void MakeTermsFileDefault() {
    KeepToShownList();
    if (CurrentTermsFile.empty())
        ShowMessage("File not found.");
    else
        SaveDefaultTermsFile(CurrentTermsFile);
    TermsChanged();  // reading the preferences again may have switched completion
}

// -- Terms ------------------------------------------------------------------------------------------------------------

bool AddTerms(std::string_view text) {
    bool added = false;
    for (const std::string_view line : LinesOf(text)) {
        if (Trimmed(line).empty()) continue;
        InsertInListOrder(Terms.listed, std::string(Trimmed(line)));
        added = true;
    }
    if (added) return SaveAndRead();
    ShowMessage("No term has been added to save.");
    return false;
}

bool ChangeTerm(const std::string& term, std::string_view text) {
    if (Trimmed(text).empty()) {
        ShowMessage("No term has been added to save.");
        return false;
    }
    if (const auto old = std::find(Terms.listed.begin(), Terms.listed.end(), term); old != Terms.listed.end())
        Terms.listed.erase(old);
    return AddTerms(text);
}

void RemoveTerms(const std::vector<std::string>& terms) {
    std::unordered_map<std::string, int> leaving;
    for (const auto& term : terms) ++leaving[term];
    std::erase_if(Terms.listed, [&](const auto& term) {
        const auto found = leaving.find(term);
        return found != leaving.end() && found->second-- > 0;
    });
    SaveAndRead();
}

void ClearTerms() {
    if (Terms.listed.empty()) {
        ShowMessage("There's nothing to delete.");
        return;
    }
    if (!AskBeforeLoss("This will delete all items in the list. Continue?", "Preparing to Clear List")) return;
    Terms.listed.clear();
    SaveAndRead();
}

void ConvertTerms(TermCase to) {
    std::vector<std::string> terms = Terms.terms;
    for (auto& term : terms)
        term = to == TermCase::Lower ? LowerCase(term) : to == TermCase::Upper ? UpperCase(term) : ProperCase(term);
    HoldTerms(std::move(terms));
    TermsChanged();
}

void ToggleAutoComplete() { AutoCompleteOn = !AutoCompleteOn; }
std::string AutoCompleteCaption() { return AutoCompleteOn ? "Disable Auto Complete" : "Enable Auto Complete"; }

std::string InsertedTerm(char last, std::string_view term) {
    const bool follows = last == '\0' || last == ' ' || last == '\n';
    return (follows ? "" : " ") + std::string(term) + " ";
}

std::string DroppedTerm(char last, std::string_view term) {
    const bool follows = last == '\0' || last == '\n';
    return (follows ? "" : " ") + std::string(term);
}
