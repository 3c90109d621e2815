// The user preferences' lines and values.
#include "shell/modPreferences.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <variant>

#include "base/dialogs.h"
#include "base/files.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"
#include "forms/printer.h"
#include "shell/modErrors.h"

PreferenceState PreferenceTables;

namespace {
const ClearedAtStart ClearPreferences([] { PreferenceTables = {}; });

// -- The values as text ----------------------------------------------------------------------------------------------

void Take(std::string_view value, std::string& text) { text = value; }
void Give(const std::string& text, std::string& value) { value = text; }

void Take(std::string_view value, bool& flag) {
    const std::string_view word = Trimmed(value);
    flag = EqualIgnoringCase(word, "True");
    if (!flag && !EqualIgnoringCase(word, "False")) throw Error(TypeMismatch);
}
void Give(bool flag, std::string& value) { value = flag ? "True" : "False"; }

void Take(std::string_view value, int& number) { number = static_cast<int>(IntegerValue(value, 0, INT16_MAX)); }
void Give(int number, std::string& value) { value = std::to_string(number); }

struct PlaceField {
    const char* key;
    float TermsPlace::*member;
};
constexpr std::array<PlaceField, 4> PlaceFields{{{"Left=", &TermsPlace::left},
                                                 {"Top=", &TermsPlace::top},
                                                 {"Width=", &TermsPlace::width},
                                                 {"Height=", &TermsPlace::height}}};

float DecimalValue(std::string_view text) {
    text = Trimmed(text);
    float number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || end != text.data() + text.size()) throw Error(TypeMismatch);
    constexpr float Farthest = 1e6F;  // twips: beyond every screen
    if (!(std::abs(number) <= Farthest)) throw Error(Overflow);
    return number;
}

void Take(std::string_view value, TermsPlace& place) {
    for (const PlaceField& field : PlaceFields) {
        const auto key = value.find(field.key);
        if (key == std::string_view::npos) continue;
        const std::string_view rest = value.substr(key + std::string_view(field.key).size());
        place.*field.member = DecimalValue(rest.substr(0, rest.find(':')));
    }
}

void Give(const TermsPlace& place, std::string& value) {
    for (const PlaceField& field : PlaceFields) {
        std::array<char, 64> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), place.*field.member, std::chars_format::fixed).ptr;
        value += (value.empty() ? "" : ":") + std::string(field.key) + std::string(digits.begin(), end);
    }
}

// -- The lines -------------------------------------------------------------------------------------------------------

template <class Value>
using Member = Value UserPreferences::*;

struct Line {
    const char* key;
    std::variant<std::monostate, Member<std::string>, Member<bool>, Member<int>, Member<TermsPlace>> member;
};

constexpr std::size_t LineCount = 20;
enum LineNumber : std::size_t {
    SharedDirectoryLine = 2,
    AutoCompleteLine = 11,
    AutoStartLine = 12,
    ShowTermsLine = 13,
    MinimizeTermsLine = 14,
    TermsFileLine = 18,
    LoadPlaceLine = 19,
    PlaceLine = 20,
};

const std::array<Line, LineCount> Lines{{
    {"", {}},
    {"Shared Directory:", &UserPreferences::networkShare},
    {"Company Name:", &UserPreferences::companyName},
    {"Company Address 1:", &UserPreferences::companyAddress1},
    {"Company Address 2:", &UserPreferences::companyAddress2},
    {"Company City, State Zip:", &UserPreferences::companyCity},
    {"Company Phone:", &UserPreferences::companyPhone},
    {"Company Fax:", &UserPreferences::companyFax},
    {"Company Website:", &UserPreferences::companyWebsite},
    {"Company Email:", &UserPreferences::companyEmail},
    {"Auto Complete Word:", &UserPreferences::autoComplete},
    {"Auto Start Position:", &UserPreferences::autoStart},
    {"Show FUT:", &UserPreferences::showTerms},
    {"Minimize FUT:", &UserPreferences::minimizeTerms},
    {"", {}},
    {"Default Printer:", &UserPreferences::defaultPrinter},
    {"", {}},
    {"Frequent Terms File:", &UserPreferences::termsFile},
    {"Load FUT Position:", &UserPreferences::loadTermsPlace},
    {"FUT Position:", &UserPreferences::termsPlace},
}};

/// Takes the value of a line (counted from 1) out of the table of lines.
void TakeValue(std::size_t number) {
    if (number > PreferenceLines.size()) throw Error(SubscriptOutOfRange);
    const auto& [key, member] = Lines.at(number - 1);
    const std::string_view value = Middle(PreferenceLines[number - 1], std::string_view(key).size() + 1);
    std::visit(
        [&](auto place) {
            if constexpr (!std::is_same_v<decltype(place), std::monostate>) Take(value, Preferences.*place);
        },
        member);
}

/// The line as it is written with the value in force.
std::string WrittenLine(std::size_t number) {
    const auto& [key, member] = Lines.at(number - 1);
    std::string value;
    std::visit(
        [&](auto place) {
            if constexpr (!std::is_same_v<decltype(place), std::monostate>) Give(Preferences.*place, value);
        },
        member);
    return key + value;
}

/// Adds the lines that the file lacked.
void CompleteLines() {
    while (PreferenceLines.size() < LineCount) PreferenceLines.push_back(WrittenLine(PreferenceLines.size() + 1));
}

void RewriteLine(std::size_t number) {
    CompleteLines();
    PreferenceLines[number - 1] = WrittenLine(number);
}

// -- Reading and writing ---------------------------------------------------------------------------------------------

Path PreferencesFile() { return DataPath("UserPreferences.txt"); }

void SelectDefaultPrinter() {
    const PrinterCalls& printer = Printer();
    if (Preferences.defaultPrinter.empty()) return;
    try {
        for (const std::string& name : printer.names()) {
            if (name != Preferences.defaultPrinter) continue;
            printer.select(name);
            return;
        }
    } catch (const Error& error) {
        if (error.number() != PrinterFault) throw;
        ShowMessage("Printer error.");
    }
}

void TakeLine(std::size_t number) {
    try {
        TakeValue(number);
    } catch (const Error& error) {
        throw AtLine(error, PreferencesFile(), static_cast<int>(number));
    }
}

void ApplyLines() {
    for (std::size_t number = 1; number < PlaceLine; ++number) TakeLine(number);
    SelectDefaultPrinter();
    if (!Preferences.termsFile.empty()) CurrentTermsFile = Preferences.termsFile;
    AutoCompleteOn = Preferences.autoComplete;
    AutoStartPosition = Preferences.autoStart;
    TakeLine(PlaceLine);
}

void ReadPreferences() {
    std::vector<std::string> lines;
    ReadDataLines(PreferencesFile(), [&](std::string_view line, int) { lines.emplace_back(line); });
    PreferenceLines = std::move(lines);
    try {
        ApplyLines();
    } catch (...) {
        // The values after the fault are not those of the file: whoever saves them must keep a copy.
        MarkNotFullyRead(PreferencesFile());
        throw;
    }
}

void MakeBackupFolder() {
    if (!FolderExists(DataFolder(), "Backup")) MakeFolder(DataPath("Backup"));
}

/// Changes values, rewrites their lines and saves. A failed save leaves values and lines as they were.
template <class Change>
bool ChangeAndSave(std::initializer_list<LineNumber> lines, Change change) {
    const PreferenceState before = PreferenceTables;
    change();
    for (const LineNumber line : lines) RewriteLine(line);
    if (SaveUserPreferences()) return true;
    PreferenceTables = before;
    return false;
}
}  // namespace

void GetUserPreferences() {
    Reporting("GetUserPreferences", ReadPreferences);
    Reporting("GetUserPreferences", MakeBackupFolder);
}

bool SaveUserPreferences() {
    return Reporting("SaveUserPreferences", [] {
        CompleteLines();
        std::string bytes;
        for (const std::string& line : PreferenceLines) bytes += line + CrLf;
        TellOfBackup(SaveDataFile(PreferencesFile(), bytes));
    });
}

bool SaveTermsPreferences(bool autoComplete, int autoStart, bool show, bool minimize) {
    const bool saved = ChangeAndSave({AutoCompleteLine, AutoStartLine, ShowTermsLine, MinimizeTermsLine}, [&] {
        Preferences.autoComplete = autoComplete;
        Preferences.autoStart = autoStart;
        Preferences.showTerms = show;
        Preferences.minimizeTerms = minimize;
    });
    if (saved) GetUserPreferences();
    return saved;
}

bool SaveDefaultTermsFile(const std::string& name) {
    const bool saved = ChangeAndSave({TermsFileLine}, [&] { Preferences.termsFile = name; });
    if (saved) GetUserPreferences();
    return saved;
}

bool SaveTermsPlace(const TermsPlace& place) {
    return ChangeAndSave({LoadPlaceLine, PlaceLine}, [&] {
        Preferences.termsPlace = place;
        Preferences.loadTermsPlace = true;
    });
}

void ChangeNetworkShare() {
    const std::string answer = AskForText("Enter the Network Share Drive letter below. Example d, e, f, etc.",
                                          "Setting Network Share Drive", Preferences.networkShare);
    const std::string_view typed = Trimmed(answer);
    if (typed.empty()) return;
    const char letter = LowerCase(typed.front());
    if (letter < 'a' || letter > 'z') {
        ShowMessage("Could not determine drive letter.");
        return;
    }
    ChangeAndSave({SharedDirectoryLine}, [&] { Preferences.networkShare = letter; });
}
