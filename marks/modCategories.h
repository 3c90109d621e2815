// The fourteen marker categories: captions, colours, which are hidden; their file "Marker Colors.dat".
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "forms/canvas.h"

inline constexpr int CategoryCount = 14;

/// The categories with a part of their own; the others mark whatever their captions say.
enum Category { BirthdayCategory = 4, HolidayCategory = 8, QuickMarksCategory = 10, TodaysDateCategory = 11 };

template <class Value>
using ByCategory = std::array<Value, CategoryCount>;

/// A category as the window of captions and colours shows it.
struct MarkerLabel {
    std::string caption;
    Color color = 0;      // 0x00BBGGRR
    Color textColor = 0;  // of the caption printed on the colour
    bool operator==(const MarkerLabel&) const = default;
};

struct CategoryState {
    ByCategory<std::string> caption{"Account Payable", "Account Receivable",
                                    "Anniversary",     "Appointment",
                                    "Birthday",        "Celebration",
                                    "Dining",          "Event",
                                    "Holiday",         "Meeting",
                                    "Quick Marks",     "Today's Date",
                                    "Travel",          "Vacation"};
    ByCategory<Color> color{};      // 0 until the file has given one
    ByCategory<Color> textColor{};  // of the caption on the category's label
    ByCategory<bool> hidden{};
    ByCategory<MarkerLabel> labels{};  // what the file holds, or is about to
    bool loaded = false;               // the file was read and no window has edited the labels since
    bool saveHidden = false;           // the next save writes which categories are hidden
    bool todayShown = true;            // today is painted in the colour of Today's Date
};
extern CategoryState Categories;

inline auto& MarkerCaption = Categories.caption;
inline auto& MarkerColor = Categories.color;
inline auto& MarkerTextColor = Categories.textColor;
inline auto& MarkerHidden = Categories.hidden;
inline auto& MarkerLabels = Categories.labels;
inline bool& MarkersLoaded = Categories.loaded;
inline bool& SaveHiddenMarks = Categories.saveHidden;
inline bool& TodayShown = Categories.todayShown;

/// The colours that a category can be given, in the order of their buttons.
inline constexpr std::array<Color, 16> MarkerPalette{0x0000FF, 0x000080, 0x0080FF, 0x004080, 0x00FFFF, 0x008080,
                                                     0x00FF00, 0x008000, 0xFFFF00, 0x808000, 0xFF0000, 0x800000,
                                                     0xFF00FF, 0x800080, 0xC0C0C0, 0x808080};
/// What a button of the palette is called, for tooltips and assistive programs. index 0..15.
const char* PaletteName(int index);

/// The colour of a caption printed on a label of the colour; nothing for colours outside the palette.
std::optional<Color> LabelTextColor(Color color);

/// The first category (0..13) of the colour; nothing for a colour that is no category's, and for 0.
std::optional<int> CategoryOfColor(Color color);

/// Reads "Marker Colors.dat" into the tables and the labels and has all windows show them. Reports what fails; the
/// lines before the fault are in effect then. The first reading of a run also sets TodayShown.
void ReadMarkerColors();

/// Rewrites the file from the labels, with the hidden marks if SaveHiddenMarks is set, which it clears, and shows
/// "Marker Colors Saved.". A failure is reported, the file is then as it was, and the answer is false.
bool SaveMarkerColors();

/// Makes sure the labels show the file: what the window of colours does when it opens. Which categories are hidden
/// stays as it is.
void OpenMarkerLabels();

/// Takes the captions and colours as edited and saves them. False, after a message, if a caption holds ":" or a colour
/// is there twice, or if the save failed: the window stays open.
bool SaveEditedLabels(const ByCategory<MarkerLabel>& edited);

/// What the window of colours does when it closes: what was refused is undone.
void CloseMarkerLabels();

/// True for a caption that the window of colours lets nobody edit further.
bool IsFixedCaption(const std::string& caption);

/// Has every window show captions, colours and check marks as the tables have them.
void ShowCategories();

// -- Hooks: filled by the windows that show the categories ----------------------------------------------------------

extern std::function<void()> ShowCategoriesInMenus;
extern std::function<void()> ShowCategoriesInBoxes;
extern std::function<void()> ShowCategoriesInLabels;
