// Birthdays, alerts and their windows against reading the same bytes into lines and filling plain list boxes.
//
// 2026-11-23, four virtual cores, medians of 51 pairs:
//   ReadBirthdays20000Afresh     2.54 of plain lines   (aim: 3)
//   ReadAlerts20000Afresh        2.32 of plain lines   (aim: 3)
//   ReadBirthdays20000           1.55 of plain lines   (a list read again keeps its memory)
//   ReadAlerts20000              1.01 of plain lines
//   Birthdays40000Against20000   1.85          (aim: 2.2)
//   Alerts40000Against20000      1.55          (aim: 2.2)
//   OpenManagerOf2000Birthdays   0.30 of two plain list boxes, both on the screen   (aim: 1.5)
//   TickACategoryInTheYearView   1.13 of a year drawn  (aim: 1.2)
#include <unistd.h>
#include <QApplication>
#include <QListWidget>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "base/dialogs.h"
#include "base/files.h"
#include "base/listEntries.h"
#include "base/state.h"
#include "base/text.h"
#include "bench/pairs.h"
#include "calendar/modCalendar.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "forms/qt/canvas.h"
#include "forms/qt/text.h"
#include "marks/modCategories.h"
#include "marks/modMarkerDisplay.h"
#include "reminders/frmBDay.h"
#include "reminders/modAlerts.h"
#include "reminders/modBirthdays.h"

namespace {
constexpr int Pairs = 51;
constexpr int Many = 20000;

/// A data folder of its own with the program's tables empty, removed at the end.
class DataOf {
  public:
    DataOf() {
        std::filesystem::create_directories(path);
        ClearAllState();
        SetDataFolder(path);
        SetDialogs({[](const std::string&, Buttons, const std::string&) { return Answer::Ok; }, {}});
        SelectDate(MakeDate(2026, 11, 22));
        Calendar.yearOnDisplay = 2026;
    }
    DataOf(const DataOf&) = delete;
    DataOf& operator=(const DataOf&) = delete;
    ~DataOf() { std::filesystem::remove_all(path); }
    const Path path = Path("/var/tmp") / ("tasmoro-bench-" + std::to_string(getpid()));
};

std::string BirthdayLines(int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += TwoDigits(i % 12 + 1) + "/" + TwoDigits(i % 28 + 1) + ":" + (i % 3 == 0 ? "-1" : "07") +
                 ":Maria Example-Sample the " + std::to_string(i) + "th:" + std::to_string(1930 + i % 90) + CrLf;
    return bytes;
}

std::string AlertLines(int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += std::to_string(46000 + i % 700) + ":" + Padded(i % 40, 4) + ":Call number " + std::to_string(i) +
                 " about the papers" + CrLf;
    return bytes;
}

/// Reading a file into lines and no more.
std::vector<std::string> PlainLines(const Path& file) {
    const std::string bytes = ReadWholeFile(file);
    std::vector<std::string> lines;
    for (const std::string_view line : LinesOf(bytes)) lines.emplace_back(line);
    return lines;
}

void ReadBirthdaysIntoCells() {
    ReadBirthdays();
    ReadAndMarkBirthdays();
}

/// The first reading of a run: no table holds memory yet.
void ReadBirthdaysAfresh() {
    BirthdayTables = {};
    ReadBirthdaysIntoCells();
}
void ReadAlertsAfresh() {
    AlertTables = {};
    ReadAlerts();
}

/// Compares the reader of a file with reading its lines.
void AgainstLines(benchmark::State& state, const char* name, const std::string& bytes, void (*read)()) {
    const DataOf data;
    const Path file = data.path / name;
    WriteWholeFile(file, bytes);
    RunPairs(state, Pairs, 3, read, [&] { benchmark::DoNotOptimize(PlainLines(file)); });
}

/// Compares the reader on twice the lines with the reader on the lines.
void AgainstHalf(benchmark::State& state, const char* name, std::string (*lines)(int), void (*read)()) {
    const DataOf data;
    const Path whole = data.path / "whole", half = data.path / "half";
    const std::string once = lines(Many), twice = lines(2 * Many);
    for (const auto& [folder, bytes] : {std::pair{whole, twice}, std::pair{half, once}}) {
        std::filesystem::create_directories(folder);
        WriteWholeFile(folder / name, bytes);
    }
    const auto readIn = [read](const Path& folder) {
        SetDataFolder(folder);
        read();
    };
    RunPairs(
        state, Pairs, 2.2, [&] { readIn(whole); }, [&] { readIn(half); });
}

void ReadBirthdays20000(benchmark::State& state) {
    AgainstLines(state, "Birthdays.dat", BirthdayLines(Many), ReadBirthdaysIntoCells);
}
void ReadAlerts20000(benchmark::State& state) { AgainstLines(state, "Alerts.dat", AlertLines(Many), ReadAlerts); }
void Birthdays40000Against20000(benchmark::State& state) {
    AgainstHalf(state, "Birthdays.dat", BirthdayLines, ReadBirthdaysIntoCells);
}
void Alerts40000Against20000(benchmark::State& state) { AgainstHalf(state, "Alerts.dat", AlertLines, ReadAlerts); }

void NeedApplication() {
    static int count = 1;
    static char name[] = "reminders_bench";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(count, arguments);
}

void OpenManagerOf2000Birthdays(benchmark::State& state) {
    NeedApplication();
    const DataOf data;
    WriteWholeFile(data.path / "Birthdays.dat", Replaced(BirthdayLines(2000), ":07:", ":-1:"));  // all are listed
    ReadBirthdays();
    OpenBirthdayList();
    QStringList byMonth, byName;
    for (const auto& entry : BirthdayList.byMonth) byMonth << FromText(VisibleText(entry));
    for (const auto& entry : BirthdayList.byName) byName << FromText(VisibleText(entry));
    RunPairs(
        state, Pairs, 1.5,
        [] {
            ShowWindow<frmBDay>();
            QApplication::processEvents();
            UnloadAllWindows();
        },
        [&] {
            QListWidget first, second;
            first.addItems(byMonth);
            second.addItems(byName);
            first.show();
            second.show();
            QApplication::processEvents();
        });
}

void TickACategoryInTheYearView(benchmark::State& state) {
    NeedApplication();
    const DataOf data;
    WriteWholeFile(data.path / "Birthdays.dat", BirthdayLines(50));
    std::array<PictureCanvas, 12> pictures;
    for (auto& picture : pictures) picture.resize(QSize(180, 128), 1);
    Shell.openView = [&](int) {
        std::vector<Canvas*> canvases;
        for (auto& picture : pictures) canvases.push_back(&picture);
        return canvases;
    };
    for (std::size_t k = 0; k < CategoryCount; ++k) MarkerColor[k] = MarkerPalette[k];
    InstallViews();
    ReadBirthdays();
    Show1YearCalendar();
    bool shown = true;
    RunPairs(
        state, Pairs, 1.2, [&] { ShowCategory(HolidayCategory, shown = !shown); }, Show1YearCalendar);
    Shell = {};
}

void ReadBirthdays20000Afresh(benchmark::State& state) {
    AgainstLines(state, "Birthdays.dat", BirthdayLines(Many), ReadBirthdaysAfresh);
}
void ReadAlerts20000Afresh(benchmark::State& state) {
    AgainstLines(state, "Alerts.dat", AlertLines(Many), ReadAlertsAfresh);
}

BENCHMARK(ReadBirthdays20000Afresh)->Iterations(1);
BENCHMARK(ReadAlerts20000Afresh)->Iterations(1);
BENCHMARK(ReadBirthdays20000)->Iterations(1);
BENCHMARK(ReadAlerts20000)->Iterations(1);
BENCHMARK(Birthdays40000Against20000)->Iterations(1);
BENCHMARK(Alerts40000Against20000)->Iterations(1);
BENCHMARK(OpenManagerOf2000Birthdays)->Iterations(1);
BENCHMARK(TickACategoryInTheYearView)->Iterations(1);
}  // namespace
