// A calendar without windows.
#include "tests/support/calendar.h"

CalendarTest::CalendarTest() {
    InstallViews();
    Calendar.startedOn = MakeDate(2026, 11, 22);
    Shell = {};
    Shell.openView = [this](int view) {
        recorders_.clear();
        std::vector<Canvas*> canvases;
        for (int i = 0; i < view; ++i) canvases.push_back(&recorders_.emplace_back());
        return canvases;
    };
    Shell.setCaption = [this](const std::string& text) { caption = text; };
    Shell.enableItem = [this](const char* item, bool on) { enabled[item] = on; };
    Shell.showInPickers = [this](Date date) { pickers = FormatDate(date, "mmmm d yyyy"); };
    Shell.dateOfPickers = [this] { return DateOfText(pickers); };
    Shell.showHolidayLabel = [this](const std::string& text) { holidayLabel = text; };
    Shell.showTemplateLabel = [this](const std::string& text) { templateLabel = text; };
    Shell.pressViewButton = [this](int view) { pressed = view; };
    Shell.captionMonth = [this](int index, const std::string& text) { monthCaptions[index] = text; };
    Shell.popUpDateOptions = [this](int, int) { ++menusOpened; };
    PutCategories(folder);
    ReadMarkerColors();
}

CalendarTest::~CalendarTest() { Shell = {}; }

void PutCategories(const TemporaryFolder& folder) { folder.put("Marker Colors.dat", CategoryLines); }

void CalendarTest::show(int view, int year, int month, int day) const {
    SelectDate(MakeDate(year, month, day));
    if (view == 1) Show1MonthCalendar();
    if (view == 6) Show6MonthCalendar();
    if (view == 12) Show1YearCalendar();
}

namespace {
const ShownMonth& MonthOnDisplay(Date date) {
    if (const ShownMonth* month = ShownMonthOf(date)) return *month;
    throw std::logic_error("the month is not on display");
}
}  // namespace

bool CalendarTest::click(int year, int month, int day) {
    const Date date = MakeDate(year, month, day);
    const Cell cell = CellOf(date);
    return SelectAt(MonthOnDisplay(date), cell.column + 0.5, cell.row + 1.25);
}

Color CalendarTest::painted(int year, int month, int day) {
    const Cell cell = CellOf(MakeDate(year, month, day));
    return MonthOnDisplay(MakeDate(year, month, day))
        .painted[static_cast<std::size_t>(cell.column)][static_cast<std::size_t>(cell.row)];
}

std::string CalendarTest::hoverText(int year, int month, int day) {
    const Date date = MakeDate(year, month, day);
    const Cell cell = CellOf(date);
    return HoverAt(MonthOnDisplay(date), cell.column + 0.5, cell.row + 1.25).text;
}
