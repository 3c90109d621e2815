// Printing the one-month calendar.
#include "marks/modPrint.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialogs.h"
#include "base/state.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "forms/printer.h"
#include "marks/modIcons.h"
#include "marks/modLabels.h"
#include "shell/modErrors.h"

bool PrintWithoutIcons = false;

namespace {
const ClearedAtStart ClearPrint([] { PrintWithoutIcons = false; });

constexpr double PageWidth = GridWidth + 1;  // units: a column is one wide, a week one high
constexpr double PageHeight = GridHeight + 4.25;
constexpr double Margin = 0.5;  // left of and above the grid's own corner
constexpr double ListTop = 7.0;
constexpr double ListPitch = 0.17;
constexpr double ListColumn = 3.5;  // from the first to the second column of the list
constexpr int ListRows = 18;
constexpr double TabStop = 0.32;  // from an entry's day to its text

/// The page in the grid's own coordinates: its corner lies inside the margin.
class Page {
  public:
    explicit Page(Canvas& canvas) : canvas_(canvas) { canvas.setScale(PageWidth, PageHeight); }
    void line(double x1, double y1, double x2, double y2) {
        canvas_.line(x1 + Margin, y1 + Margin, x2 + Margin, y2 + Margin, Black);
    }
    void text(double x, double y, std::string_view text, const Font& font, Color color) {
        canvas_.text(x + Margin, y + Margin, text, font, color);
    }
    void centered(double x, double y, std::string_view text, const Font& font, Color color) {
        CenteredText(canvas_, x + Margin, y + Margin, text, font, color);
    }
    void picture(double x, double y, double width, double height, const Path& file) {
        canvas_.picture(x + Margin, y + Margin, width, height, file);
    }
    double height(const Font& font) { return canvas_.textHeight(font); }
    double width(std::string_view text, const Font& font) { return canvas_.textWidth(text, font); }

  private:
    Canvas& canvas_;
};

void PrintFrame(Page& page, Date month) {
    const std::string title = TemplateMode ? "Monthly Template" : FormatDate(month, "mmmm, yyyy");
    page.centered(GridWidth / 2, 0.1, title, {"Arial", 12}, Black);
    for (int column = 0; column < ColumnsInGrid && !TemplateMode; ++column)
        page.centered(column + 0.5, 0.475, WeekdayNames.at(static_cast<std::size_t>(column)), {"Arial", 10}, Black);
    for (int column = 0; column <= ColumnsInGrid; ++column) page.line(column, 0.375, column, GridHeight);
    page.line(0, 0.375, GridWidth, 0.375);
    for (int row = 0; row <= RowsInGrid; ++row) page.line(0, row + 0.75, GridWidth, row + 0.75);
}

/// The colour of a day's number: in the template by the day, otherwise that of the day's last entry.
Color NumberColor(int day, const std::vector<DayEntry>& entries) {
    if (TemplateMode) return day == 31 ? 0x0000FF : day >= 29 ? Silver : Black;
    const auto last = std::find_if(entries.rbegin(), entries.rend(), [&](const auto& e) { return e.day == day; });
    return last == entries.rend() ? Black : last->color;
}

void PrintDays(Page& page, Date month, const std::vector<DayEntry>& entries) {
    const Font font{"Arial", Paint.numbersOffset ? 10.0 : 18.0, true};
    for (int day = 1; day <= DaysInMonth(YearOf(month), MonthOf(month)); ++day) {
        const Cell cell = CellOf(month + (day - 1));
        const Color color = NumberColor(day, entries);
        const std::string number = std::to_string(day);
        if (Paint.numbersOffset)
            page.text(cell.column + 0.05, cell.row + 1 - page.height(font), number, font, color);
        else
            page.centered(cell.column + 0.5, cell.row + 1.05, number, font, color);
        DayPaint.at(static_cast<std::size_t>(day - 1)) = {true, color};
    }
}

void PrintIcons(Page& page) {
    // A picture that could not be shown, and was reported then, shall not keep the page from being printed.
    for (const PlacedIcon& icon : IconPool)
        if (icon.visible && !Icons.badPictures.contains(PictureOfSlot(icon.palette)))
            page.picture(icon.left, icon.top, IconWidth, IconHeight, PictureFile(PictureOfSlot(icon.palette)));
}

/// The text, shortened to the width: the columns of the list must not run into each other, nor off the paper.
std::string Fitting(Page& page, std::string text, double width, const Font& font) {
    if (page.width(text, font) <= width) return text;
    while (!text.empty() && page.width(text + "...", font) > width) text.pop_back();
    return text + "...";
}

void PrintList(Page& page, const std::vector<DayEntry>& entries) {
    Font font{"Arial", 9};
    // On paper that is wider than high the lines stand closer than nine points.
    while (font.points > 5 && page.height(font) > ListPitch * 1.08) font.points -= 0.5;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const int column = static_cast<int>(i) / ListRows;
        const int row = static_cast<int>(i) % ListRows;
        const double x = column * ListColumn;
        const double y = ListTop + row * ListPitch;
        page.text(x, y, std::to_string(entries[i].day) + ":", font, entries[i].color);
        page.text(x + TabStop, y, Fitting(page, entries[i].text, ListColumn - TabStop - 0.1, font), font,
                  entries[i].color);
    }
}

void PrintPage() {
    const Date month = MonthOnDisplay();
    std::vector<DayEntry> entries;
    if (!TemplateMode) entries = EntriesOfMonth(month);
    std::vector<DayEntry> listed = entries;
    LimitEntries(listed, "first 36 will be printed. You may wish to hide some of the marks and",
                 "print 1 or more additional calendars. Sorry for the inconvenience.");
    SetMonthIconFile(month);
    const auto canvas = Printer().begin(TemplateMode ? "Monthly Template" : FormatDate(month, "mmmm, yyyy"));
    Page page(*canvas);
    PrintFrame(page, month);
    PrintDays(page, month, entries);
    if (!PrintWithoutIcons) PrintIcons(page);
    PrintList(page, listed);
    canvas->end();
}
}  // namespace

void Print1MonthCalendar() {
    if (!PrinterAvailable) {
        ShowMessage("Printer could not be found");
        return;
    }
    Reporting("Print1MonthCalendar", PrintPage);
}

void mnuFilePrintCalendar_Click() {
    PrintWithoutIcons = false;
    Print1MonthCalendar();
}

void mnuFilePrintCalendarNoIcons_Click() {
    PrintWithoutIcons = true;
    Print1MonthCalendar();
}
