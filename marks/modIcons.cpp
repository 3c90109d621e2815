// The palette, the icons of the displayed month, the template.
#include "marks/modIcons.h"

#include <algorithm>
#include <exception>
#include <system_error>
#include <utility>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "marks/modSaveChanges.h"
#include "shell/modErrors.h"

IconState Icons;
std::function<void()> ShowPlacedIcons;
std::function<void(int)> LoadPicture;
std::function<void()> ShowPalette;
std::function<void()> ClosePalette;
std::function<void()> CloseMonthWindow;

namespace {
void AskAboutUnsavedIcons(bool programEnds);

const ClearedAtStart ClearIcons([] {
    Icons = {};
    AskAboutIcons = AskAboutUnsavedIcons;
});

constexpr const char* TagsName = "Icon Tags.dat";
constexpr const char* TemplateName = "Template.dat";
constexpr std::string_view IndexWord = "Index:";

void Run(const std::function<void()>& hook) {
    if (hook) hook();
}

/// What the body throws, to be thrown again once the rest is done; null if nothing.
template <class Body>
std::exception_ptr Caught(Body&& body) {
    try {
        body();
    } catch (const std::exception&) {
        return std::current_exception();
    }
    return nullptr;
}

void ThrowAgain(const std::exception_ptr& failure) {
    if (failure) std::rethrow_exception(failure);
}

int InRange(std::int64_t value, int highest) {
    if (value < 0 || value > highest) throw Error(SubscriptOutOfRange);
    return static_cast<int>(value);
}
}  // namespace

// -- Lines ----------------------------------------------------------------------------------------------------------

IconLine IconLineOf(std::string_view text) {
    const auto word = text.find(IndexWord);
    if (word == std::string_view::npos) throw Error(TypeMismatch);
    return {InRange(IntegerValue(Middle(text, 1, 2)), 30), InRange(IntegerValue(Middle(text, 4, 2)), SlotsOfDay - 1),
            InRange(IntegerValue(text.substr(word + IndexWord.size())), PaletteSize - 1)};
}

std::string TextOfIconLine(const IconLine& line) {
    return TwoDigits(line.day) + ":" + TwoDigits(line.slot) + " " + std::string(IndexWord) + TwoDigits(line.palette);
}

// -- The palette ----------------------------------------------------------------------------------------------------

namespace {
std::size_t At(int index) { return static_cast<std::size_t>(index); }

std::string TagLine(int picture, const std::string& caption) { return Padded(picture, 3) + ":" + caption; }

void SetPaletteSlot(int slot, int picture, const std::string& caption) {
    IconFile.at(At(slot)) = std::to_string(picture);
    IconCaption.at(At(slot)) = caption;
    IconTagLines.at(At(slot)) = TagLine(picture, caption);
}

void ReadTagLines() {
    // A slot that no line describes shows its own number's picture: saving then still writes a file that can be read.
    for (int slot = 0; slot < PaletteSize; ++slot) SetPaletteSlot(slot, slot, "");
    IconCount = PaletteSize - 1;
    Icons.tags = IconState::Tags::Failed;
    const Path path = DataPath(TagsName);
    int lines = 0;
    ReadDataLines(path, [&](std::string_view line, int number) {
        lines = number;
        if (number > PaletteSize) return;
        SetPaletteSlot(number - 1, InRange(IntegerValue(Middle(line, 1, 3)), 999), std::string(Middle(line, 5)));
        IconTagLines.at(At(number - 1)) = line;
    });
    if (lines != PaletteSize) MarkNotFullyRead(path);
    if (lines < PaletteSize) throw OfFile(Error(InputPastEnd), path);
    Icons.tags = IconState::Tags::Read;
}

void LoadLibraryPicture(int picture) {
    try {
        if (LoadPicture)
            LoadPicture(picture);
        else if (!FileExists(PathInFolder(DataFolder(), "Images"), std::to_string(picture) + ".ico"))
            throw Error(FileNotFound);
    } catch (const Error& error) {
        throw OfFile(error, PictureFile(picture));  // which of so many
    }
}

/// Loads the pictures; the first that fails is thrown after the others are loaded. One that failed before is not tried
/// again unless `again`: a month drawn anew shall not report it anew.
void LoadPictures(const std::set<int>& pictures, bool again) {
    std::exception_ptr first;
    for (const int picture : pictures) {
        if (!again && Icons.badPictures.contains(picture)) continue;
        const auto failure = Caught([&] { LoadLibraryPicture(picture); });
        if (!failure)
            Icons.badPictures.erase(picture);
        else if (Icons.badPictures.insert(picture); !first)
            first = failure;
    }
    ThrowAgain(first);
}

/// What placed icons need of the palette: its lines, and the pictures of those shown.
void PreparePalette() {
    const bool shown =
        std::any_of(IconPool.begin(), IconPool.end(), [](const PlacedIcon& icon) { return icon.visible; });
    if (!shown) return;
    Reporting("ReadIconTags", [] {
        std::exception_ptr failure;
        if (Icons.tags == IconState::Tags::NotRead) failure = Caught(ReadTagLines);
        std::set<int> pictures;
        for (const PlacedIcon& icon : IconPool)
            if (icon.visible) pictures.insert(PictureOfSlot(icon.palette));
        const auto missing = Caught([&] { LoadPictures(pictures, false); });
        ThrowAgain(failure ? failure : missing);
    });
}
}  // namespace

void ReadIconTags() {
    Reporting("ReadIconTags", [] {
        std::exception_ptr failure;
        if (Icons.tags != IconState::Tags::Read) failure = Caught(ReadTagLines);
        std::set<int> pictures;
        for (int slot = 0; slot < PaletteSize; ++slot) pictures.insert(PictureOfSlot(slot));
        const auto missing = Caught([&] { LoadPictures(pictures, true); });
        ThrowAgain(failure ? failure : missing);
    });
}

bool SaveIconTags() {
    return Reporting("SaveIconTags", [] {
        std::string bytes;
        for (const auto& line : IconTagLines) bytes += line + CrLf;
        TellOfBackup(SaveDataFile(DataPath(TagsName), bytes));
    });
}

bool ChangePaletteSlot(int slot, const std::string& caption, int picture) {
    const IconState before = Icons;
    SetPaletteSlot(slot, picture, caption);
    if (!SaveIconTags()) {
        Icons = before;
        return false;
    }
    Run(ShowPlacedIcons);
    return true;
}

int PictureOfSlot(int slot) {
    const std::string& file = IconFile.at(At(slot));
    return file.empty() ? slot : static_cast<int>(IntegerValue(file));
}

Path PictureFile(int picture) {
    return PathInFolder(PathInFolder(DataFolder(), "Images"), std::to_string(picture) + ".ico");
}

// -- The pool -------------------------------------------------------------------------------------------------------

namespace {
bool IsDragged(std::size_t icon) {
    return DragKind == Drag::Picture && icon == static_cast<std::size_t>(Icons.currentIcon);
}

/// What the visible icons occupy; one that is being dragged occupies nothing.
void CountSlots() {
    IconSlotUsed = {};
    for (std::size_t i = 0; i < IconPool.size(); ++i) {
        if (!IconPool[i].visible || IsDragged(i)) continue;
        const IconLine line = IconLineOf(IconPool[i].tag);
        IconSlotUsed.at(At(line.slot)).at(At(line.day)) = true;
    }
}

/// The first free slot of the day; nothing if all four are taken.
std::optional<int> FreeSlot(int day) {
    for (int slot = 0; slot < SlotsOfDay; ++slot)
        if (!IconSlotUsed.at(At(slot)).at(At(day))) return slot;
    return {};
}

IconLines& LinesInUse() { return Icons.ofTemplate ? TemplateLines : MonthIconLines; }
int& CountInUse() { return Icons.ofTemplate ? TemplateCount : MonthIconCount; }

void CountLines() {
    const IconLines& lines = LinesInUse();
    CountInUse() =
        static_cast<int>(std::count_if(lines.begin(), lines.end(), [](const auto& l) { return !l.empty(); }));
}

bool DayExists(int day) {
    const YearMonthDay month = PartsOf(*Icons.month);
    return IsDate(month.year, month.month, day + 1);
}

/// Makes the pool's control show the line; hidden where the month has no such day.
void PutIcon(int icon, const IconLine& line, std::string_view tag) {
    if (IconPool.size() <= At(icon)) IconPool.resize(At(icon) + 1);
    PlacedIcon& placed = IconPool[At(icon)];
    placed = {false, DayExists(line.day), std::string(tag), line.palette, 0, 0};
    if (!placed.visible) return;
    const Cell cell = CellOf(*Icons.month + line.day);
    placed.left = cell.column + IconSlotX.at(At(line.slot));
    placed.top = cell.row + IconSlotTop;
    IconSlotUsed.at(At(line.slot)).at(At(line.day)) = true;
}

/// Reads an icon file into the entries. The lines before a bad one stay in effect when it throws.
void ReadIconLines(const Path& path, IconLines& lines, int& count) {
    ReadDataLines(path, [&](std::string_view line, int number) {
        if (number > MostIcons) throw Error(SubscriptOutOfRange);
        IconLineOf(line);
        lines.at(At(number - 1)) = line;
        count = number;
    });
}

/// The day of the month on which a template's icon shows: the 31st stands for the last day of any month.
int TemplateDay(int day) {
    const YearMonthDay month = PartsOf(*Icons.month);
    const int last = DaysInMonth(month.year, month.month) - 1;
    const bool beyondFebruary = month.month == 2 && day == 29;
    return day == 30 || beyondFebruary ? last : day;
}

/// The template's icons in a real month, each with a line of that month's own. A day may get the icons of two: the
/// 28th and the 31st in February. Those take the slots that are free.
void PlaceTemplateInMonth() {
    for (int i = 0; i < TemplateCount; ++i) {
        IconLine line = IconLineOf(TemplateLines.at(At(i)));
        line.day = TemplateDay(line.day);
        if (!DayExists(line.day)) continue;
        if (IconSlotUsed.at(At(line.slot)).at(At(line.day))) line.slot = FreeSlot(line.day).value_or(line.slot);
        MonthIconLines.at(At(i)) = TextOfIconLine(line);
        PutIcon(i, line, MonthIconLines.at(At(i)));
    }
    CountLines();
}

void PlaceLines() {
    IconsLoading = true;
    if (!Icons.ofTemplate && TemplateCount > 0) {
        PlaceTemplateInMonth();
    } else {
        const IconLines& lines = LinesInUse();
        for (int i = 0; i < CountInUse(); ++i) PutIcon(i, IconLineOf(lines.at(At(i))), lines.at(At(i)));
    }
    IconsLoading = false;
    PreparePalette();
    Run(ShowPlacedIcons);
}

void EmptyMonth() {
    MonthIconLines = {};
    TemplateLines = {};
    MonthIconCount = TemplateCount = 0;
    IconSlotUsed = {};
    IconPool.clear();
    Icons.currentIcon = -1;
    DragKind = Drag::None;
}
}  // namespace

// -- The month's icons ----------------------------------------------------------------------------------------------

namespace {
constexpr const char* SaveQuestion = "Monthly Icons have been changed. Do you want to save those changes?";
constexpr const char* SaveTitle = "Month Has Changed";

bool WriteTemplate();
bool SaveIconsInTables() { return Icons.ofTemplate ? WriteTemplate() : Save1MonthIcons(); }

/// For drawings that nobody asked about beforehand: without it they would drop what is unsaved.
void SaveBeforeTheyGo() {
    if (IconsChanged && Ask(SaveQuestion, Buttons::YesNo, SaveTitle) == Answer::Yes) SaveIconsInTables();
    IconsChanged = false;
}

Path FolderOfMonth() { return YearFolder(YearOf(*Icons.month)); }
Path FileOfMonth() { return PathInFolder(FolderOfMonth(), FormatDate(*Icons.month, "mmm") + "_Icons.dat"); }
}  // namespace

void ResetMonthIcons(Date month) {
    const bool same = Icons.month == FirstOfMonth(month) && Icons.ofTemplate == TemplateMode;
    if (!same) SaveBeforeTheyGo();
    Icons.month = FirstOfMonth(month);
    Icons.ofTemplate = TemplateMode;
    if (!IconsChanged) EmptyMonth();
}

void SetMonthIconFile(Date date) { MonthIconFile = FormatDate(date, "mmm") + "_Icons.dat"; }

MonthIcons PlaceMonthIcons() {
    if (IconsChanged) {
        Run(ShowPlacedIcons);
        return MonthIcons::Modified;
    }
    const Path folder = FolderOfMonth();
    if (FileExists(folder, FormatDate(*Icons.month, "mmm") + "_Icons.dat")) {
        Read1MonthIcons();
        std::error_code ignored;
        return std::filesystem::file_size(FileOfMonth(), ignored) == 0 ? MonthIcons::MarksOnly : MonthIcons::Modified;
    }
    if (!FileExists(DataFolder(), TemplateName)) {
        Run(ShowPlacedIcons);
        return MonthIcons::Untouched;
    }
    ReadTemplateTags();
    return MonthIcons::Template;
}

bool AnyIconPlaced() {
    return std::any_of(IconPool.begin(), IconPool.end(), [](const PlacedIcon& icon) { return !icon.free; });
}

void ReadTemplateTags() {
    if (IconsChanged) {
        Run(ShowPlacedIcons);
        return;
    }
    Reporting("ReadTemplateTags", [] {
        std::exception_ptr failure;
        if (FileExists(DataFolder(), TemplateName))
            failure = Caught([] { ReadIconLines(DataPath(TemplateName), TemplateLines, TemplateCount); });
        PlaceLines();
        ThrowAgain(failure);
    });
}

void Read1MonthIcons() {
    Reporting("Read1MonthIcons", [] {
        const auto failure = Caught([] { ReadIconLines(FileOfMonth(), MonthIconLines, MonthIconCount); });
        PlaceLines();
        ThrowAgain(failure);
    });
}

namespace {
std::string BytesOf(const IconLines& lines) {
    std::string bytes;
    for (const auto& line : lines)
        if (!line.empty()) bytes += line + CrLf;
    return bytes;
}

bool WriteTemplate() {
    return Reporting("SaveTemplateIcons", [] {
        if (!Icons.ofTemplate && TemplateCount == 0) throw Error(InvalidCall);
        const std::string backup = SaveDataFile(DataPath(TemplateName), BytesOf(TemplateLines));
        if (Icons.ofTemplate) IconsChanged = false;
        ShowMessage("Template Saved." + (backup.empty() ? "" : CrLf + backup));
    });
}
}  // namespace

bool Save1MonthIcons() {
    return Reporting("Save1MonthIcons", [] {
        if (!Icons.month || Icons.ofTemplate) throw Error(InvalidCall);
        MakeFolder(FolderOfMonth());
        const std::string backup = SaveDataFile(FileOfMonth(), BytesOf(MonthIconLines));
        IconsChanged = false;
        Tell(Shell.showTemplateLabel, AnyIconPlaced() ? "Monthly View = Modified" : "Monthly View = Marks Only");
        ShowMessage("Calendar Saved." + (backup.empty() ? "" : CrLf + backup));
    });
}

bool SaveTemplateIcons() {
    if (!WriteTemplate()) return false;
    Run(ClosePalette);
    TemplateMode = false;
    Run(CloseMonthWindow);
    SelectDate(Today());
    Show1YearCalendar();
    return true;
}

void CreateOrModifyTemplate() {
    if (!MayGoOn()) return;
    Reporting("mnuFileCreateTemplate_Click", [] {
        if (!FileExists(DataFolder(), TemplateName)) TellOfBackup(SaveDataFile(DataPath(TemplateName), ""));
        TemplateDate = MakeDate(DisplayedYear, 1, 1);
        TemplateMode = true;
        Show1MonthCalendar();
        Run(ShowPalette);
        ShowMessage(std::string("Click and Drag the Icons onto the selected dates. Icons inserted") + CrLf +
                    "on the 29th and 30th will be discarded and Icons inserted on the 31st" + CrLf +
                    "will appear on the last day of each month, i.e., the 28th for February," + CrLf +
                    "the 30th for September and so on." + CrLf + CrLf +
                    "When you are finished, select \"Save Calendar Template\" from under" + CrLf +
                    "the menu \"File\". Shortcut = CTRL + T");
    });
}

void LeaveTemplateMode() {
    if (!TemplateMode) return;
    SaveBeforeTheyGo();
    TemplateMode = false;
}

namespace {
void ForgetChanges() {
    IconsChanged = false;
    TemplateMode = false;
    const bool ofTemplate = Icons.ofTemplate;
    EmptyMonth();
    if (!ofTemplate && MonthWindowOpen) PlaceMonthIcons();
    Run(ShowPlacedIcons);
}

void AskAboutUnsavedIcons(bool programEnds) {
    if (!IconsChanged) return;
    const Answer answer = Ask(SaveQuestion, Buttons::YesNoCancel, SaveTitle);
    if (answer == Answer::Yes) {
        const bool saved = TemplateMode && !programEnds ? SaveTemplateIcons() : SaveIconsInTables();
        SaveCancelled = !saved;
    } else if (answer == Answer::No) {
        ForgetChanges();
    } else {
        SaveCancelled = true;
    }
}
}  // namespace

// -- Dragging, dropping, removing -----------------------------------------------------------------------------------

int GetAvailableIcon() {
    const auto free = std::find_if(IconPool.begin(), IconPool.end(), [](const PlacedIcon& icon) { return icon.free; });
    if (free == IconPool.end() && IconPool.size() >= At(MostIcons)) throw Error(SubscriptOutOfRange);
    const auto index = free - IconPool.begin();
    if (free == IconPool.end()) IconPool.emplace_back();
    IconPool[static_cast<std::size_t>(index)].free = false;
    return static_cast<int>(index);
}

bool MayDragFromPalette() {
    if (MonthWindowOpen) return true;
    ShowMessage(std::string("Icons can only be inserted on the 1 Month Calendar.") + CrLf +
                "Right Click on any Icon to change the Caption or Picture.");
    return false;
}

void BeginDragFromPalette(int slot) {
    DragKind = Drag::Image;
    DragIconIndex = slot;
}

void BeginDragOfIcon(int icon) {
    Icons.currentIcon = icon;
    DragKind = Drag::Picture;
    DragIconIndex = IconPool.at(At(icon)).palette;
    CountSlots();
}

void CancelDrag() {
    DragKind = Drag::None;
    CountSlots();
}

namespace {
/// The day index at a point of the month's picture; nothing in the header, on an empty cell, and on the days of the
/// template that keep no icons.
std::optional<int> DropDay(double x, double y) {
    const YearMonthDay month = PartsOf(*Icons.month);
    const Cell cell = CellAtPoint(month.month - 1, x, y);
    if (!HasDate(month.year, cell)) return {};
    const int day = DayOf(DateOfCell(month.year, cell));
    if (TemplateMode && (day == 29 || day == 30)) return {};
    return day - 1;
}

void PlaceDropped(int day) {
    const auto slot = FreeSlot(day);
    if (!slot) {
        CancelDrag();
        ShowMessage("Day Full");
        return;
    }
    const int icon = DragKind == Drag::Picture ? Icons.currentIcon : GetAvailableIcon();
    const IconLine line{day, *slot, DragIconIndex};
    LinesInUse().at(At(icon)) = TextOfIconLine(line);
    PutIcon(icon, line, TextOfIconLine(line));
    CountLines();
    IconsChanged = true;
    CancelDrag();
    PreparePalette();
}
}  // namespace

void DropIcon(double x, double y) {
    if (DragKind == Drag::None || !Icons.month) return;
    Reporting("picMonth_DragDrop", [&] {
        if (const auto day = DropDay(x, y))
            PlaceDropped(*day);
        else
            CancelDrag();
    });
    if (DragKind != Drag::None) CancelDrag();
    Run(ShowPlacedIcons);
}

void ForgetSelectedIcon() { Icons.currentIcon = -1; }

bool SelectIconOf(Date date) {
    ForgetSelectedIcon();
    int lastSlot = -1;
    for (std::size_t i = 0; i < IconPool.size(); ++i) {
        if (!IconPool[i].visible) continue;
        const IconLine line = IconLineOf(IconPool[i].tag);
        if (*Icons.month + line.day != date || line.slot < lastSlot) continue;
        lastSlot = line.slot;
        Icons.currentIcon = static_cast<int>(i);
    }
    return Icons.currentIcon >= 0;
}

void RemoveSelectedIcon() {
    const auto icon = static_cast<std::size_t>(Icons.currentIcon);
    if (Icons.currentIcon < 0 || icon >= IconPool.size() || IconPool[icon].free) return;
    LinesInUse().at(icon).clear();
    IconPool[icon] = {};
    ForgetSelectedIcon();  // the next icon placed may get this control
    CountLines();
    CountSlots();
    IconsChanged = true;
    Run(ShowPlacedIcons);
}

void RemoveAllIcons() {
    if (!AskBeforeLoss("Proceeding with this action will remove all icons for the entire month. Continue?",
                       "Preparing to remove all Icons"))
        return;
    LinesInUse() = {};
    CountInUse() = 0;
    IconPool.clear();
    CountSlots();
    Icons.currentIcon = -1;
    IconsChanged = true;
    Run(ShowPlacedIcons);
}
