// The tables of date marks, their files and their painting.
#include "marks/modMarks.h"

#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "marks/modCategories.h"
#include "marks/modIcons.h"
#include "reminders/modBirthdays.h"
#include "reminders/modHolidays.h"
#include "shell/modErrors.h"

MarkState MarkTables;

namespace {
constexpr Color LargestColor = 0xFFFFFF;

const ClearedAtStart ClearMarks([] {
    MarkTables = {};
    // A slot without its flags may not be saved over its file: it counts as not read.
    ClearMarkFlags = [] { Marks = {}; };
});

// -- The line of a mark: one walk over its fields, for reader and writer ---------------------------------------------

template <class Visitor, class Record>
void WalkMark(Visitor& visitor, Record& mark) {
    visitor.twoDigits(mark.cell.month);
    visitor.separator(':');
    visitor.twoDigits(mark.cell.column);
    visitor.separator(':');
    visitor.twoDigits(mark.cell.row);
    visitor.separator(':');
    visitor.number(mark.color);
    visitor.rest('-', mark.hoverText);
}

struct MarkWriter {
    std::string line;
    void twoDigits(int number) { line += TwoDigits(number); }
    void separator(char c) { line += c; }
    void number(Color number) { line += std::to_string(number); }
    void rest(char before, const std::string& text) {
        if (!text.empty()) line += before + text;
    }
};

/// Fields are found by their places: what stands where a separator belongs is passed over.
struct MarkReader {
    std::string_view line;
    std::string_view take(std::size_t count) {
        const std::string_view taken = line.substr(0, count);
        line.remove_prefix(taken.size());
        return taken;
    }
    void twoDigits(int& number) { number = SmallIntegerValue(take(2)); }
    void separator(char) { take(1); }
    void number(Color& number) { number = static_cast<Color>(IntegerValue(take(line.find('-')), 0, LargestColor)); }
    void rest(char, std::string& text) { text = Middle(line, 2); }
};

// -- Files -----------------------------------------------------------------------------------------------------------

std::string MarksFileName(int year, const char* ending) { return Padded(year, 4) + ending; }

/// Enters a line into the tables. False if the tables do not hold all of it.
bool EnterMark(MarksOfYear& marks, std::string_view line) {
    const MarkRecord mark = ParseMark(line);
    const bool first = !marks.flag[mark.cell];
    marks.flag[mark.cell] = true;
    marks.color[mark.cell] = mark.color;
    if (!mark.hoverText.empty()) marks.hoverText[mark.cell] = mark.hoverText;
    return first && MarkLine(mark) == line;
}

void ReadMarks(Year slot) {
    MarksOfYear& marks = Marks[slot];
    marks = {};
    marks.year = YearOfSlot(slot);
    if (slot == ThisYear) MarkLines.clear();
    if (!FileExists(DataFolder(), MarksFileName(marks.year, "Marks.dat"))) return;
    bool allHeld = true;
    ReadDataLines(MarksFile(marks.year), [&](std::string_view line, int) {
        allHeld = EnterMark(marks, line) && allHeld;
        if (slot == ThisYear) MarkLines.emplace_back(line.substr(0, line.find('-', 8)));
    });
    if (!allHeld) MarkNotFullyRead(MarksFile(marks.year));
}

std::string FileText(const MarksOfYear& marks) {
    std::string text;
    ForEachCell([&](Cell cell) {
        if (!marks.flag[cell]) return;
        text += (text.empty() ? "" : CrLf) + MarkLine({cell, marks.color[cell], marks.hoverText[cell]});
    });
    return text;
}

/// Keeps next year's file as it is as ".bak". It is copied, not renamed: there is a whole file under its name always.
void KeepAsBak(int year) {
    if (!FileExists(DataFolder(), MarksFileName(year, "Marks.dat"))) return;
    WriteWholeFile(DataPath(MarksFileName(year, "Marks.bak")), ReadWholeFile(MarksFile(year)));
}

void WriteMarks(Year slot) {
    const MarksOfYear& marks = Marks[slot];
    if (marks.year == 0) throw Error(InvalidCall, "The marks of the year are not read. Nothing was saved.");
    const std::string text = FileText(marks);
    if (slot == NextYear) KeepAsBak(marks.year);
    const bool noFile = slot == ThisYear && text.empty();
    TellOfBackup(noFile ? DeleteDataFile(MarksFile(marks.year)) : SaveDataFile(MarksFile(marks.year), text));
}

// -- Painting --------------------------------------------------------------------------------------------------------

bool IsHidden(Color color) {
    for (std::size_t k = 0; k < CategoryCount; ++k)
        if (MarkerHidden.at(k) && MarkerColor.at(k) == color) return true;
    return false;
}

void PaintMarksOf(const ShownMonth& shown) {
    for (int column = 0; column < ColumnsInGrid; ++column) {
        for (int row = 0; row < RowsInGrid; ++row) {
            const Cell cell{shown.month, column, row};
            if (!Marks[shown.slot].flag[cell] || !HasDate(shown.year, cell)) continue;
            const Color color = ShownColor(shown.slot, cell);
            const Color painted = shown.painted.at(static_cast<std::size_t>(column)).at(static_cast<std::size_t>(row));
            if (painted != color) PaintDay(shown.slot, cell, DayOf(DateOfCell(shown.year, cell)), color);
        }
    }
}

void RepaintSelectedCell() {
    const Year slot = LiesInNextYear(SelectedDate) ? NextYear : ThisYear;
    const Cell cell = CellOf(SelectedDate);
    PaintDay(slot, cell, DayOf(SelectedDate), Marks[slot].flag[cell] ? ShownColor(slot, cell) : 0);
}
}  // namespace

std::string MarkLine(const MarkRecord& mark) {
    MarkWriter writer;
    WalkMark(writer, mark);
    return writer.line;
}

MarkRecord ParseMark(std::string_view line) {
    if (Middle(line, 9, 1) == "-") throw Error(TypeMismatch);  // what follows is a hover text: there is no colour
    MarkRecord mark;
    MarkReader reader{line};
    WalkMark(reader, mark);
    if (!mark.cell.valid()) throw Error(SubscriptOutOfRange);
    return mark;
}

Path MarksFile(int year) { return DataPath(MarksFileName(year, "Marks.dat")); }

bool SaveThisYearsMarks() {
    return Reporting("SaveThisYearsMarks", [] { WriteMarks(ThisYear); });
}

bool SaveNextYearsMarks() {
    return Reporting("SaveNextYearsMarks", [] { WriteMarks(NextYear); });
}

bool SaveMarks(Year slot) { return slot == ThisYear ? SaveThisYearsMarks() : SaveNextYearsMarks(); }

void ReadAndDisplayThisYearsMarks() {
    Reporting("ReadAndDisplayThisYearsMarks", [] { ReadMarks(ThisYear); });
    PaintMarks(ThisYear);
}

void ReadAndDisplayNextYearsMarks() {
    Reporting("ReadAndDisplayNextYearsMarks", [] { ReadMarks(NextYear); });
    PaintMarks(NextYear);
}

void ReadAndDisplayMarks(Year slot) {
    slot == ThisYear ? ReadAndDisplayThisYearsMarks() : ReadAndDisplayNextYearsMarks();
}

bool SaveAndReadMarks(Year slot) {
    if (!SaveMarks(slot)) return false;
    ReadAndDisplayMarks(slot);
    return true;
}

bool ShowsHoliday(Year slot, Cell cell) {
    const HolidaysOfYear& holidays = HolidayYears[slot];
    return !MarkerHidden[HolidayCategory] && holidays.year == YearOfSlot(slot) && holidays.flag[cell];
}

bool ShowsBirthday(Year slot, Cell cell) {
    const BirthdaysOfYear& birthdays = BirthdayTables.years[slot];
    return !MarkerHidden[BirthdayCategory] && birthdays.year == YearOfSlot(slot) && birthdays.flag[cell];
}

Color ShownColor(Year slot, Cell cell) {
    const Color own = Marks[slot].color[cell];
    if (!IsHidden(own)) return own;
    if (ShowsHoliday(slot, cell)) return MarkerColor[HolidayCategory];
    return ShowsBirthday(slot, cell) ? MarkerColor[BirthdayCategory] : 0;
}

void PaintMarks(Year slot) {
    for (const ShownMonth& shown : ShownMonths)
        if (shown.slot == slot && shown.year == Marks[slot].year) PaintMarksOf(shown);
}

void ReDraw1MonthDateMarks() { Reporting("ReDraw1MonthDateMarks", RepaintSelectedCell); }
void ReDraw6MonthDateMarks() { Reporting("ReDraw6MonthDateMarks", RepaintSelectedCell); }
void ReDrawDateMarks() { Reporting("ReDrawDateMarks", RepaintSelectedCell); }

std::optional<Year> SlotOfSelectedDay() {
    if (TemplateMode) return std::nullopt;
    // A click on a cell without a date leaves the selected date where it was: the two do not agree then.
    if (!SelectedCell.valid() || SelectedCell != CellOf(SelectedDate)) return std::nullopt;
    if (SelectedInNextYear && !LiesInNextYear(SelectedDate)) return std::nullopt;
    const Year slot = SlotOf(SelectedDate);
    if (Marks[slot].year != YearOf(SelectedDate)) ReadAndDisplayMarks(slot);
    if (Marks[slot].year != YearOf(SelectedDate)) throw Error(InvalidCall);
    return slot;
}
