// The marker categories' tables and their file.
#include "marks/modCategories.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/dialogs.h"
#include "base/files.h"
#include "base/state.h"
#include "base/text.h"
#include "shell/modErrors.h"

CategoryState Categories;
std::function<void()> ShowCategoriesInMenus;
std::function<void()> ShowCategoriesInBoxes;
std::function<void()> ShowCategoriesInLabels;

namespace {
const ClearedAtStart ClearCategories([] { Categories = {}; });

constexpr Color LabelYellow = 0x00FFFF;
constexpr Color LargestColor = 0xFFFFFF;

struct PaletteEntry {
    const char* name;
    Color text;  // of a caption on the colour
};
constexpr std::array<PaletteEntry, MarkerPalette.size()> PaletteEntries{{{"Red", White},
                                                                         {"Dark Red", White},
                                                                         {"Orange", Black},
                                                                         {"Brown", LabelYellow},
                                                                         {"Yellow", Black},
                                                                         {"Olive", White},
                                                                         {"Green", Black},
                                                                         {"Dark Green", White},
                                                                         {"Cyan", Black},
                                                                         {"Teal", White},
                                                                         {"Blue", White},
                                                                         {"Navy", White},
                                                                         {"Magenta", Black},
                                                                         {"Purple", White},
                                                                         {"Silver", Black},
                                                                         {"Grey", White}}};

Path ColorsFile() { return DataPath("Marker Colors.dat"); }

// -- The line of a category: caption, ":", colour, "*" if it is hidden -----------------------------------------------

struct CategoryLine {
    std::string caption;
    Color color = 0;
    bool hidden = false;
};

CategoryLine Parsed(std::string_view line) {
    CategoryLine parsed;
    parsed.hidden = line.ends_with('*');
    if (parsed.hidden) line.remove_suffix(1);
    const auto colon = line.find(':');
    if (colon == std::string_view::npos) throw Error(TypeMismatch);
    parsed.color = static_cast<Color>(IntegerValue(line.substr(colon + 1), 0, LargestColor));
    parsed.caption = line.substr(0, colon);
    return parsed;
}

std::string Written(const CategoryLine& line) {
    return line.caption + ":" + std::to_string(line.color) + (line.hidden ? "*" : "");
}

void TakeCategory(std::size_t k, const CategoryLine& line) {
    MarkerCaption.at(k) = line.caption;
    MarkerColor.at(k) = line.color;
    if (line.hidden) MarkerHidden.at(k) = true;
}

void ReadColorsFile() {
    const Path path = ColorsFile();
    int count = 0;
    bool asWeWriteIt = true;
    ReadDataLines(path, [&](std::string_view line, int number) {
        if (number > CategoryCount) throw Error(SubscriptOutOfRange);
        const CategoryLine parsed = Parsed(line);
        TakeCategory(static_cast<std::size_t>(number) - 1, parsed);
        asWeWriteIt = asWeWriteIt && Written(parsed) == line;
        count = number;
    });
    if (count < CategoryCount || !asWeWriteIt) MarkNotFullyRead(path);
    if (count < CategoryCount) throw OfFile(Error(InputPastEnd), path);
    MarkersLoaded = true;
}

/// The labels as the tables are.
void FillLabels() {
    for (std::size_t k = 0; k < CategoryCount; ++k) {
        if (const auto color = LabelTextColor(MarkerColor.at(k))) MarkerTextColor.at(k) = *color;
        MarkerLabels.at(k) = {MarkerCaption.at(k), MarkerColor.at(k), MarkerTextColor.at(k)};
    }
}

void FillTables(const ByCategory<MarkerLabel>& labels) {
    for (std::size_t k = 0; k < CategoryCount; ++k) {
        MarkerCaption.at(k) = labels.at(k).caption;
        MarkerColor.at(k) = labels.at(k).color;
    }
}

std::string FileFromLabels(bool withHidden) {
    std::string bytes;
    for (std::size_t k = 0; k < CategoryCount; ++k) {
        const MarkerLabel& label = MarkerLabels.at(k);
        bytes += Written({label.caption, label.color, withHidden && MarkerHidden.at(k)}) + CrLf;
    }
    return bytes;
}

bool HasColorTwice(const ByCategory<MarkerLabel>& labels) {
    std::set<Color> seen;
    return std::any_of(labels.begin(), labels.end(),
                       [&](const MarkerLabel& label) { return !seen.insert(label.color).second; });
}

/// The first caption that could not be read back; null if all can.
const MarkerLabel* UnreadableCaption(const ByCategory<MarkerLabel>& labels) {
    const auto* found = std::find_if(labels.begin(), labels.end(), [](const MarkerLabel& label) {
        return label.caption.find_first_of(":\r\n") != std::string::npos;
    });
    return found == labels.end() ? nullptr : found;
}
}  // namespace

const char* PaletteName(int index) { return PaletteEntries.at(static_cast<std::size_t>(index)).name; }

std::optional<Color> LabelTextColor(Color color) {
    const auto* found = std::find(MarkerPalette.begin(), MarkerPalette.end(), color);
    if (found == MarkerPalette.end()) return std::nullopt;
    return PaletteEntries.at(static_cast<std::size_t>(found - MarkerPalette.begin())).text;
}

std::optional<int> CategoryOfColor(Color color) {
    const auto* found = std::find(MarkerColor.begin(), MarkerColor.end(), color);
    if (color == 0 || found == MarkerColor.end()) return std::nullopt;
    return static_cast<int>(found - MarkerColor.begin());
}

void ReadMarkerColors() {
    Reporting("ReadMarkerColors", ReadColorsFile);
    FillLabels();
    ShowCategories();
}

bool SaveMarkerColors() {
    return Reporting("SaveMarkerColors", [] {
        const bool withHidden = std::exchange(SaveHiddenMarks, false);
        const std::string told = SaveDataFile(ColorsFile(), FileFromLabels(withHidden));
        ShowMessage("Marker Colors Saved." + (told.empty() ? "" : CrLf + std::string(CrLf) + told));
    });
}

void OpenMarkerLabels() {
    if (MarkersLoaded) return;
    // The file says which categories were hidden when they were last saved; what is on display now is the user's.
    const auto hidden = MarkerHidden;
    ReadMarkerColors();
    MarkerHidden = hidden;
    ShowCategories();
}

bool SaveEditedLabels(const ByCategory<MarkerLabel>& edited) {
    if (const MarkerLabel* label = UnreadableCaption(edited)) {
        ShowMessage("The caption \"" + label->caption +
                    "\" cannot be saved: a caption cannot hold \":\", because \":\" separates the caption from the "
                    "color in the file.");
        return false;
    }
    FillTables(edited);
    if (HasColorTwice(edited)) {
        ShowMessage("You cannot use the same color twice. Choose a different color for each category.");
        return false;
    }
    const auto before = std::exchange(MarkerLabels, edited);
    if (!SaveMarkerColors()) {
        MarkerLabels = before;
        return false;
    }
    ReadMarkerColors();
    return true;
}

void CloseMarkerLabels() {
    MarkersLoaded = false;
    FillTables(MarkerLabels);
    ShowCategories();
}

bool IsFixedCaption(const std::string& caption) {
    return caption == "Quick Mark" || caption == "Holiday" || caption == "Today's Date";
}

void ShowCategories() {
    for (const auto* show : {&ShowCategoriesInMenus, &ShowCategoriesInBoxes, &ShowCategoriesInLabels})
        if (*show) (*show)();
}
