// Icons on days: the palette they come from, the icons placed on the displayed month, the monthly template, their
// files, and the rules by which icons are dropped, moved and removed.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/dates.h"
#include "base/files.h"
#include "calendar/modGrid.h"

inline constexpr int PaletteSize = 96;       // slots of the palette
inline constexpr int LibrarySize = 144;      // pictures in "Images"
inline constexpr int SlotsOfDay = 4;         // icons that one day can carry
inline constexpr int MostIcons = 31 * 4;     // icons that one month can carry
inline constexpr double IconSlotTop = 1.45;  // of every icon, below the cell's row, in the units of the month's picture
inline constexpr std::array<double, SlotsOfDay> IconSlotX{0.04, 0.28, 0.52, 0.76};  // from the cell's column
inline constexpr int IconTwips = 300;  // width and height on the screen at 100 %
/// The same in the units of the month's picture, which is 8900 twips wide and 7000 high.
inline constexpr double IconWidth = IconTwips * 7 / 8900.0;
inline constexpr double IconHeight = IconTwips * 6.75 / 7000.0;

/// What a line of an icon file says.
struct IconLine {
    int day = 0;      // day of the month - 1: 0..30
    int slot = 0;     // 0..3
    int palette = 0;  // palette slot, 0..95
    bool operator==(const IconLine&) const = default;
};

/// Reads "06:02 Index:41". Throws Error 13 for what is no such line, 9 for a number outside its range.
IconLine IconLineOf(std::string_view text);
std::string TextOfIconLine(const IconLine& line);

/// One picture control of the month window: picIcon(i) shows the i-th of these.
struct PlacedIcon {
    bool free = true;      // holds no icon; is reused before a new control is made
    bool visible = false;  // a free one never is; one on a day that the month does not have is not
    std::string tag;       // its line in the file, on the month's own day; "" if free
    int palette = 0;       // 0..95
    double left = 0;       // in the units of the month's picture
    double top = 0;
};

enum class Drag { None, Image, Picture };  // nothing; an icon of the palette; an icon placed on a day

using IconLines = std::array<std::string, MostIcons>;  // "" where an entry is free

struct IconState {
    std::array<std::string, PaletteSize> tagLines;  // lines of "Icon Tags.dat"
    std::array<std::string, PaletteSize> file;      // picture numbers, "7"
    std::array<std::string, PaletteSize> caption;
    int count = 0;  // the highest palette slot once the palette has been read
    enum class Tags { NotRead, Read, Failed } tags = Tags::NotRead;
    std::set<int> badPictures;  // numbers whose failure has been reported

    IconLines monthLines;
    IconLines templateLines;
    int monthCount = 0;
    int templateCount = 0;
    std::array<std::array<bool, 31>, SlotsOfDay> slotUsed{};  // [slot][day of the month - 1]
    std::vector<PlacedIcon> pool;                             // the controls there are, at most MostIcons

    bool changed = false;  // icons were placed or removed since the last save
    bool templateMode = false;
    bool loading = false;
    bool paletteShown = false;
    bool monthWindowOpen = false;
    std::string monthFile;      // "Apr_Icons.dat"
    Date templateDate;          // January 1 of the year displayed when the editing of the template began
    std::optional<Date> month;  // the first day of the month whose icons the tables hold; nothing before the first
    bool ofTemplate = false;    // the tables hold the template's own icons

    Drag drag = Drag::None;
    int dragIcon = 0;      // palette slot of the dragged icon
    int currentIcon = -1;  // the placed icon last pressed; -1 for none
};
extern IconState Icons;

inline auto& IconTagLines = Icons.tagLines;
inline auto& IconFile = Icons.file;
inline auto& IconCaption = Icons.caption;
inline int& IconCount = Icons.count;
inline auto& MonthIconLines = Icons.monthLines;
inline int& MonthIconCount = Icons.monthCount;
inline auto& TemplateLines = Icons.templateLines;
inline int& TemplateCount = Icons.templateCount;
inline auto& IconSlotUsed = Icons.slotUsed;
inline auto& IconPool = Icons.pool;
inline bool& IconsChanged = Icons.changed;
inline bool& TemplateMode = Icons.templateMode;
inline bool& IconsLoading = Icons.loading;
inline bool& PaletteShown = Icons.paletteShown;
inline bool& MonthWindowOpen = Icons.monthWindowOpen;
inline std::string& MonthIconFile = Icons.monthFile;
inline Date& TemplateDate = Icons.templateDate;
inline Drag& DragKind = Icons.drag;
inline int& DragIconIndex = Icons.dragIcon;

// -- The palette ----------------------------------------------------------------------------------------------------

/// Reads "Icon Tags.dat" (once; again after a failure) and has every slot's picture loaded. A missing file, a bad line
/// or a missing picture is reported; the slots read before the bad line keep what they have, the others show their own
/// number's picture without a caption.
void ReadIconTags();

/// Rewrites "Icon Tags.dat". A failure is reported, and the file is then as it was. True if it was written.
bool SaveIconTags();

/// Gives a palette slot (0..95) another caption and picture (0..143), and saves. False after a failure, which is
/// reported; the slot then keeps what it had.
bool ChangePaletteSlot(int slot, const std::string& caption, int picture);

/// The picture number of a palette slot: 0..999 from the file, its own number before that.
int PictureOfSlot(int slot);
/// "Images/12.ico" in the data folder.
Path PictureFile(int picture);

// -- The month's icons ----------------------------------------------------------------------------------------------

/// What a month shows of icons.
enum class MonthIcons { Untouched, Template, MarksOnly, Modified };

/// First step of drawing a month: removes every icon from it and from the tables. Icons changed and not yet saved stay
/// in their tables when the same month (or the template) is drawn again.
void ResetMonthIcons(Date month);

/// Sets MonthIconFile for the month of the date.
void SetMonthIconFile(Date date);

/// Places the icons of a real month: those of its own file or, where it has none, the template's. Says which;
/// Untouched when there is neither file.
MonthIcons PlaceMonthIcons();

/// True if the month or the template on display carries an icon.
bool AnyIconPlaced();

/// Reads "Template.dat" and places its icons on the displayed month, or on January in template mode. The 31st becomes
/// the month's last day. A missing file counts as empty.
void ReadTemplateTags();

/// Reads the displayed month's icon file and places its icons.
void Read1MonthIcons();

/// Writes the displayed month's icon file and tells so. False after a failure, which is reported; IconsChanged then
/// stays.
bool Save1MonthIcons();

/// Writes "Template.dat", tells so and leaves template mode for the year calendar of today. False after a failure,
/// which is reported; the mode and IconsChanged then stay.
bool SaveTemplateIcons();

/// Begins the editing of the template: makes "Template.dat" where there is none, draws it, shows the palette, tells
/// how.
void CreateOrModifyTemplate();

/// Ends template mode without saving: the six-month and the one-year view do it when they draw.
void LeaveTemplateMode();

// -- Dragging, dropping, removing -----------------------------------------------------------------------------------

/// Index of a free control, or of one more. Throws Error 9 where all 124 are taken.
int GetAvailableIcon();

/// An icon of the palette begins to be dragged. False, after a message, while no month is open.
bool MayDragFromPalette();
void BeginDragFromPalette(int slot);
/// A placed icon begins to be dragged: its place counts as free.
void BeginDragOfIcon(int icon);
/// The dragged icon comes down at a point of the month's picture, in its units.
void DropIcon(double x, double y);
/// A drag ended elsewhere: a placed icon stays where it was.
void CancelDrag();

/// No icon is the current one any more: a day was selected after it.
void ForgetSelectedIcon();
/// Makes the last of the icons on a day of the month the current one, for who has no pointer. False if there is none.
bool SelectIconOf(Date date);
/// "Remove Selected Icon": the current one.
void RemoveSelectedIcon();
/// "Remove All Icons", after a question.
void RemoveAllIcons();

// -- Hooks: filled by the windows -----------------------------------------------------------------------------------

/// Puts the month's picture controls as IconPool says.
extern std::function<void()> ShowPlacedIcons;
/// Loads a library picture, 0..143, to be shown. Throws Error 53 if there is none, 75 if it is no picture.
extern std::function<void(int picture)> LoadPicture;
/// Shows and closes the palette window.
extern std::function<void()> ShowPalette;
extern std::function<void()> ClosePalette;
/// Closes the one-month window.
extern std::function<void()> CloseMonthWindow;
