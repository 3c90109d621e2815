// The month with and without icons, the palette's second showing, and the six-month view over a year's end, drawn in
// the main window and put on an offscreen screen, from files as a planner of some years has them.
#include <unistd.h>

#include <QApplication>
#include <string>

#include "base/dialogs.h"
#include "base/files.h"
#include "bench/pairs.h"
#include "calendar/modCalendar.h"
#include "calendar/modViews.h"
#include "marks/frmIcons.h"
#include "marks/modIcons.h"
#include "marks/modMarks.h"
#include "shell/frmMain.h"

namespace {
constexpr int Pairs = 51;

/// The main window over a folder of its own, removed at the end.
class Planner {
  public:
    Planner() {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "icons_bench";
        static char* argv[] = {name, nullptr};
        static QApplication application(argc, argv);
        SetDialogs({[](const std::string&, Buttons, const std::string&) { return Answer::Ok; },
                    [](const std::string&, const std::string&, const std::string&) { return std::string(); }});
        std::filesystem::create_directories(path_);
        std::filesystem::copy(TASMORO_ICONS, path_, std::filesystem::copy_options::recursive);
        SetDataFolder(path_);
        putYear(2026);
        putYear(2027);
        putIcons();
        window_ = new frmMain;
        window_->resize(1280, 960);
        window_->startUp();
        window_->show();
        QApplication::processEvents();
    }
    Planner(const Planner&) = delete;
    Planner& operator=(const Planner&) = delete;
    ~Planner() {
        UnloadAllWindows();
        std::filesystem::remove_all(path_);
    }

    /// Draws the view of the month and waits until it is on the screen.
    void show(void (*draw)(), int year, int month) {
        SelectDate(MakeDate(year, month, 1));
        draw();
        QApplication::processEvents();
    }
    const Path& path() const { return path_; }

  private:
    void put(const std::string& name, const std::string& bytes) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        WriteWholeFile(path_ / name, bytes);
    }

    /// 150 marks with hover texts and 24 holidays.
    void putYear(int year) const {
        std::string marks, holidays;
        for (int i = 0; i < 150; ++i)
            marks += MarkLine({CellOf(MakeDate(year, 1, 1) + i * 2), 8388608, "Budget review"}) + "\r\n";
        for (int i = 0; i < 24; ++i) holidays += FormatDate(MakeDate(year, 1, 1) + i * 15, "mm/dd/yy") + ":Holiday\r\n";
        put(std::to_string(year) + "Marks.dat", marks);
        put("Holidays/" + std::to_string(year) + "Holidays.dat", holidays);
    }

    /// July has 124 icons, March none: both have 31 days.
    void putIcons() const {
        std::string lines;
        for (int i = 0; i < MostIcons; ++i) lines += TextOfIconLine({i / 4, i % 4, i % PaletteSize}) + "\r\n";
        put("2026/Jul_Icons.dat", lines);
        put("2026/Mar_Icons.dat", "");
    }

    Path path_ = Path("/var/tmp") / ("tasmoro-bench-" + std::to_string(getpid()));
    frmMain* window_;
};

void MonthWith124Icons(benchmark::State& state) {
    Planner planner;
    RunPairs(
        state, Pairs, 1.5, [&] { planner.show(Show1MonthCalendar, 2026, 7); },
        [&] { planner.show(Show1MonthCalendar, 2026, 3); });
}

void SixMonthsOverAYearsEnd(benchmark::State& state) {
    Planner planner;
    RunPairs(
        state, Pairs, 2.2, [&] { planner.show(Show6MonthCalendar, 2026, 10); },
        [&] { planner.show(Show6MonthCalendar, 2026, 3); });
}

/// Opening a month while the palette has never been read, against opening it with the palette known.
void MonthBeforeThePalette(benchmark::State& state) {
    Planner planner;
    RunPairs(
        state, Pairs, 1.1,
        [&] {
            Icons.tags = IconState::Tags::NotRead;
            planner.show(Show1MonthCalendar, 2026, 3);
        },
        [&] {
            if (Icons.tags != IconState::Tags::Read) ReadIconTags();
            planner.show(Show1MonthCalendar, 2026, 3);
        });
}

BENCHMARK(MonthWith124Icons)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(SixMonthsOverAYearsEnd)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(MonthBeforeThePalette)->Iterations(1)->Unit(benchmark::kMillisecond);
}  // namespace
