// The user preferences: the twenty lines of "UserPreferences.txt", their values, and the commands that change them.
#pragma once

#include <string>
#include <vector>

/// Where the terms window stands and how large it is, in twips.
struct TermsPlace {
    float left = 11820;
    float top = 3045;
    float width = 2805;
    float height = 6345;
    bool operator==(const TermsPlace&) const = default;
};

/// The values of the lines. What stands here before the first reading is what a missing line is written with.
struct UserPreferences {
    std::string networkShare;  // a small letter, or ""
    std::string companyName;
    std::string companyAddress1;
    std::string companyAddress2;
    std::string companyCity;  // with state and zip code
    std::string companyPhone;
    std::string companyFax;
    std::string companyWebsite;
    std::string companyEmail;
    bool autoComplete = true;
    int autoStart = 2;       // 0..32767: a term is suggested once more characters than this are typed
    bool showTerms = false;  // the terms window opens together with the notes editor
    bool minimizeTerms = false;
    std::string defaultPrinter;   // its device name, or ""
    std::string termsFile;        // the default list of terms, "Work.fut", or ""
    bool loadTermsPlace = false;  // the terms window opens at termsPlace
    TermsPlace termsPlace;
};

struct PreferenceState {
    std::vector<std::string> lines;  // the file's lines as they stand, or as they will be written
    UserPreferences values;
    std::string currentTermsFile;  // the list of terms in use; "" for none
    bool autoCompleteOn = true;
    int autoStartPosition = 2;
};
extern PreferenceState PreferenceTables;

inline auto& PreferenceLines = PreferenceTables.lines;
inline auto& Preferences = PreferenceTables.values;
/// Starts as the default list with every reading of the preferences; whoever opens another list sets it.
inline std::string& CurrentTermsFile = PreferenceTables.currentTermsFile;
/// Copies of the preferences, taken at the end of every reading, that may be switched for a while.
inline bool& AutoCompleteOn = PreferenceTables.autoCompleteOn;
inline int& AutoStartPosition = PreferenceTables.autoStartPosition;

/// Reads the file and applies it: the printer, the list of terms, AutoCompleteOn and AutoStartPosition; makes the
/// folder "Backup". Reports a missing file, a missing line and a value that is none; what was read before stays.
void GetUserPreferences();

/// Writes the lines, those that the file lacked with the values in force. False after a report.
bool SaveUserPreferences();

/// Puts the values of the terms dialog into their lines, saves and reads again. False if the save failed.
bool SaveTermsPreferences(bool autoComplete, int autoStart, bool show, bool minimize);

/// Makes the list the default one, saves and reads again. False if the save failed.
bool SaveDefaultTermsFile(const std::string& name);

/// Keeps the terms window's place for the next run. False if the save failed.
bool SaveTermsPlace(const TermsPlace& place);

/// The command "Change Network Share Drive": asks for the letter and saves it.
void ChangeNetworkShare();
