// The birthday manager's lists and edits.
#include "reminders/modBirthdayManager.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/listEntries.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modViews.h"
#include "forms/printer.h"
#include "shell/modErrors.h"

BirthdayListState BirthdayList;

namespace {
const ClearedAtStart ClearBirthdayList([] { BirthdayList = {}; });

constexpr int TabsOfEntry = 3;
constexpr const char* NotRemembered = "****";
constexpr const char* NoAge = "Age = NA";

const BirthdayRec& RecordAt(int index) { return Birthday[static_cast<std::size_t>(index)]; }

bool IsListed(std::size_t index) { return !BirthdayList.pendingOnly || !PendingBirthdayLine[index].empty(); }

/// The birthdays' indexes in the order of their lines: calendar order.
std::vector<std::size_t> CalendarOrder() {
    std::vector<std::size_t> order(BirthdayLine.size());
    std::iota(order.begin(), order.end(), 0U);
    // A file that the program wrote is in order.
    if (!std::is_sorted(BirthdayLine.begin(), BirthdayLine.end(), InListOrder()))
        std::stable_sort(order.begin(), order.end(), [](std::size_t a, std::size_t b) {
            return CompareInListOrder(BirthdayLine[a], BirthdayLine[b]) < 0;
        });
    return order;
}

void RebuildLists() {
    LoadListBoxes();
    UpdateListBox();
}

bool SaveAndReload(bool keepPrevious) {
    const bool saved = SaveBirthdays(keepPrevious);
    ReadBirthdays();
    FillPendingBirthdayList();
    RebuildLists();
    if (saved) BirthdayList.changed = true;
    return saved;
}
}  // namespace

// -- Lists ----------------------------------------------------------------------------------------------------------

void OpenBirthdayList() {
    BirthdayList = {};
    BirthdayList.pendingOnly = PendingBirthdayCount >= 1;
    QuietBirthdaySave = true;
    ReadBirthdays();
    FillPendingBirthdayList();
    RebuildLists();
}

std::string BirthdayListTitle() {
    return BirthdayList.pendingOnly ? "Birthday Management - Viewing Pending" : "Birthday Management - Viewing All";
}

void LoadListBoxes() {
    BirthdayMasterList.clear();
    BirthdayList.byMonth.clear();
    for (const std::size_t i : CalendarOrder()) {
        BirthdayMasterList.push_back(BirthdayLine[i]);
        if (IsListed(i))
            BirthdayList.byMonth.push_back(
                RecordEntry(BirthdayDateText(Birthday[i]) + "\t" + Birthday[i].Name, static_cast<int>(i), TabsOfEntry));
    }
}

void UpdateListBox() {
    BirthdayList.byName.clear();
    for (std::size_t i = 0; i < Birthday.size(); ++i)
        if (IsListed(i))
            BirthdayList.byName.push_back(
                RecordEntry(BirthdayNameKey(Birthday[i].Name) + " - " + BirthdayDateText(Birthday[i]),
                            static_cast<int>(i), TabsOfEntry));
    std::stable_sort(BirthdayList.byName.begin(), BirthdayList.byName.end(), InListOrder());
}

void ViewBirthdays(bool pendingOnly) {
    BirthdayList.pendingOnly = pendingOnly;
    BirthdayList.edited = -1;
    RebuildLists();
}

std::string BirthdayDateText(const BirthdayRec& record) {
    return record.BirthYear == NotRemembered ? record.MonthDay : record.MonthDay + "/" + record.BirthYear;
}

namespace {
/// What ends a name without being the surname, the longer form first.
constexpr std::array<std::string_view, 13> Suffixes{", JR.", " JR.",  ", JR", " JR",  ", SR.", " SR.", ", SR",
                                                    " SR",   ", III", " III", ", II", " II",   " I"};

/// Cuts the suffix that the name ends with; "" if it ends with none.
std::string CutSuffix(std::string_view& name) {
    for (const std::string_view suffix : Suffixes) {
        if (name.size() <= suffix.size()) continue;
        const std::string_view end = name.substr(name.size() - suffix.size());
        if (!EqualIgnoringCase(end, suffix)) continue;
        name = Trimmed(name.substr(0, name.size() - suffix.size()));
        return std::string(end);
    }
    return {};
}
}  // namespace

std::string BirthdayNameKey(std::string_view name) {
    name = Trimmed(name);
    std::string suffix;
    for (std::string cut = CutSuffix(name); !cut.empty(); cut = CutSuffix(name)) suffix.insert(0, cut);
    const auto blank = name.rfind(' ');
    if (blank == std::string_view::npos) return std::string(name) + suffix;
    return std::string(name.substr(blank + 1)).append(", ").append(Trimmed(name.substr(0, blank))) + suffix;
}

// -- Editing --------------------------------------------------------------------------------------------------------

std::string CalculateAge(const BirthdayRec& record) {
    int born = 0;
    try {
        born = static_cast<int>(IntegerValue(record.BirthYear, 1, LastYear));
    } catch (const Error&) {
        return NoAge;
    }
    const Date today = Today();
    const auto birthday = BirthdayInYear(record.MonthDay, YearOf(today));
    if (!birthday) return NoAge;
    const int age = YearOf(today) - born - (today < *birthday ? 1 : 0);
    return "Age = " + std::to_string(std::max(age, 0));
}

BirthdayEdit SelectBirthday(int index) {
    BirthdayList.edited = index;
    const BirthdayRec& record = RecordAt(index);
    BirthdayEdit shown{record.Name, BirthdayDateText(record), record.BirthYear != NotRemembered, std::nullopt,
                       CalculateAge(record)};
    for (std::size_t i = 0; i < BirthdayPeriods.size(); ++i)
        if (std::to_string(IntegerValue(BirthdayPeriods[i])) == record.NotifyDays) shown.period = static_cast<int>(i);
    return shown;
}

int BirthdayOfLine(const std::string& line) {
    const auto found = std::find(BirthdayLine.begin(), BirthdayLine.end(), line);
    return found == BirthdayLine.end() ? -1 : static_cast<int>(found - BirthdayLine.begin());
}

bool NamesYear(std::string_view date) {
    int numbers = 0;
    bool inNumber = false;
    bool letters = false;
    for (const char c : date) {
        const bool digit = c >= '0' && c <= '9';
        if (digit && !inNumber) ++numbers;
        inNumber = digit;
        letters = letters || IsLetter(c);
    }
    return numbers + (letters ? 1 : 0) >= 3;
}

namespace {
BirthdayField Refuse(const std::string& message, BirthdayField field) {
    ShowMessage(message);
    return field;
}

BirthdayField Check(const BirthdayEdit& typed) {
    if (Trimmed(typed.name).empty()) return Refuse("Please enter a name in the box provided.", BirthdayField::Name);
    if (typed.name.find(':') != std::string::npos)
        return Refuse(
            "A name cannot hold \":\", because the birthday file ends the name there. Please write it otherwise.",
            BirthdayField::Name);
    const auto date = ReadDate(typed.date);
    if (!date) return Refuse("Please enter a date.", BirthdayField::Date);
    if (FormatDate(*date, "mm/dd") == "02/29")
        return Refuse(std::string("February 29 cannot be entered as a valid date (Leap Year only). Please") + CrLf +
                          "enter either February 28 or March 1. We apologize for the inconvenience.",
                      BirthdayField::Date);
    return BirthdayField::Saved;
}

/// The stored period of the option chosen; without one, that of the birthday being edited.
std::string PeriodOf(const BirthdayEdit& typed) {
    if (typed.period) return BirthdayPeriods[static_cast<std::size_t>(*typed.period)];
    if (BirthdayList.edited < 0) return BirthdayPeriods[UsualBirthdayPeriod];
    return Padded(IntegerValue(RecordAt(BirthdayList.edited).NotifyDays), 2);
}

std::string LineOf(const BirthdayEdit& typed) {
    const Date date = DateOfText(typed.date);
    const std::string year = typed.rememberAge ? Padded(YearOf(date), 4) : NotRemembered;
    return FormatDate(date, "mm/dd") + ":" + PeriodOf(typed) + ":" + std::string(Trimmed(typed.name)) + ":" + year;
}

/// True if the line says no more than its record does: nothing of it goes when the record is written anew.
bool IsPlain(const std::string& line) {
    BirthdayRec record;
    return ParseBirthday(line, record) &&
           line.size() == record.MonthDay.size() + record.Name.size() + record.BirthYear.size() + 5;
}

std::string EditedLine() {
    return BirthdayList.edited < 0 ? "" : BirthdayLine[static_cast<std::size_t>(BirthdayList.edited)];
}

/// Takes the line of a birthday out of the master list.
void EraseLine(const std::string& line) {
    const auto found = std::find(BirthdayMasterList.begin(), BirthdayMasterList.end(), line);
    if (found != BirthdayMasterList.end()) BirthdayMasterList.erase(found);
}
}  // namespace

BirthdayField SaveBirthday(const BirthdayEdit& typed) {
    if (const BirthdayField wrong = Check(typed); wrong != BirthdayField::Saved) return wrong;
    const std::string line = LineOf(typed);
    const bool adding = BirthdayList.edited < 0;
    const std::string old = EditedLine();
    if (!adding) EraseLine(old);
    // Saving the same new birthday twice adds it once.
    const bool there =
        std::find(BirthdayMasterList.begin(), BirthdayMasterList.end(), line) != BirthdayMasterList.end();
    if (!adding || !there) InsertInListOrder(BirthdayMasterList, line);
    const bool saved = SaveAndReload(!adding && !IsPlain(old));
    if (!adding) BirthdayList.edited = BirthdayOfLine(saved ? line : old);
    return saved ? BirthdayField::Saved : BirthdayField::Abandoned;
}

bool DeleteBirthdays(const std::vector<int>& indexes) {
    if (indexes.empty()) {
        ShowMessage("Nothing selected to delete.");
        return false;
    }
    const bool several = indexes.size() > 1;
    if (several &&
        !AskBeforeLoss("Are you sure you want to delete these multiple items?", "Preparing to Delete Multiple Items"))
        return false;
    for (const int index : indexes) EraseLine(BirthdayLine[static_cast<std::size_t>(index)]);
    const std::string edited = EditedLine();
    const bool deleted = SaveAndReload(several);
    BirthdayList.edited = deleted ? -1 : BirthdayOfLine(edited);
    return deleted;
}

void MarkAllBirthdays() {
    ReadAndMarkBirthdays();
    ReadAndMarkNextYearsBirthdays();
    RepaintCalendar();  // marks lie over birthdays
}

void CloseBirthdayList() {
    if (BirthdayList.changed) ShowMessage("Birthday List Saved. Changes will be reflected in your next calendar view.");
    BirthdayList = {};
    QuietBirthdaySave = false;
}

// -- Printing -------------------------------------------------------------------------------------------------------

namespace {
constexpr double PageMargin = 1440;  // twips
constexpr double NameColumn = 1560;  // twips from the left margin, right of the longest date
const Font PrintFont{"Times New Roman", 11};

bool PrinterMissing() {
    if (!PrinterAvailable) ShowMessage("Printer not found.");
    return !PrinterAvailable;
}

/// What of an entry is printed: by month its date and its name, by name its one text.
std::pair<std::string_view, std::string_view> PrintedText(std::string_view entry) {
    const std::string_view shown = VisibleText(entry);
    const auto tab = shown.find('\t');
    if (tab == std::string_view::npos) return {shown, {}};
    return {shown.substr(0, tab), shown.substr(tab + 1)};
}

void PrintPages(Canvas& paper, const std::vector<std::string>& entries) {
    const double line = (paper.scaleHeight() - 2 * PageMargin) / BirthdaysPerPage;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::size_t row = i % BirthdaysPerPage;
        if (i > 0 && row == 0) paper.newPage();
        const double y = PageMargin + static_cast<double>(row) * line;
        const auto [first, second] = PrintedText(entries[i]);
        paper.text(PageMargin, y, first, PrintFont, Black);
        if (!second.empty()) paper.text(PageMargin + NameColumn, y, second, PrintFont, Black);
    }
}

void PrintDocument(const char* procedure, const char* title, const std::function<void(Canvas&)>& draw) {
    Reporting(procedure, [&] {
        const auto paper = Printer().begin(title);
        draw(*paper);
        paper->end();
    });
}
}  // namespace

void PrintBirthdayRecord(const BirthdayEdit& shown) {
    if (Trimmed(shown.name).empty() || PrinterMissing()) return;
    PrintDocument("PrintBirthdayRecord", "Birthday", [&](Canvas& paper) {
        double y = PageMargin;
        for (const std::string& line : {shown.name, shown.date, shown.age}) {
            paper.text(PageMargin, y, line, PrintFont, Black);
            y += paper.textHeight(PrintFont) * 1.2;
        }
    });
}

void PrintBirthdayList(const std::vector<std::string>& entries) {
    if (PrinterMissing()) return;
    const std::size_t pages = (entries.size() + BirthdaysPerPage - 1) / BirthdaysPerPage;
    if (Ask("Click OK to begin printing these " + std::to_string(pages) + " pages. Click Cancel to exit.",
            Buttons::OkCancel, "Beginning Print Process") != Answer::Ok)
        return;
    if (!entries.empty())
        PrintDocument("PrintBirthdayList", "Birthdays", [&](Canvas& paper) { PrintPages(paper, entries); });
}

void PrintSelectedBirthdays(const std::vector<std::string>& entries) {
    if (PrinterMissing()) return;
    if (entries.empty()) return ShowMessage("Nothing from the list has been selected to print.");
    PrintBirthdayList(entries);
}
