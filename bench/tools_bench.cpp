// Searching the help and counting weekdays, each against the plain way of doing it.
//
// 2026-11-23, four virtual cores, medians of 51 pairs:
//   SearchHelpForAbsentPhrase   0.23 to 0.24 of upper-cased copies  (aim: 0.33; 1.6 ms against 7 ms)
//   CountAndListWeekdays        0.47 to 0.49 of addItems with texts made before  (aim: 1.5)
#include <QApplication>
#include <QListWidget>
#include <string>
#include <vector>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/text.h"
#include "bench/pairs.h"
#include "notes/modHelp.h"
#include "tools/frmNumDays.h"

namespace {
constexpr std::size_t HelpBytes = 10 << 20;

/// Ten megabytes of help in topics of some 10 kB, as people write: words, capitals, line breaks.
void FillHelp() {
    HelpTopics = {};
    std::string text;
    while (text.size() < 10000)
        text +=
            "Click the Day with the right mouse button and choose \"Mark Selected Date as...\", then the Category; "
            "the day takes its colour.\r\n\r\nPress Escape to come back to the year. ";
    for (std::size_t bytes = 0; bytes < HelpBytes; bytes += text.size()) {
        HelpTopics.titles.push_back("Topic");
        HelpTopics.texts.push_back(text);
    }
}

/// Makes a copy of each topic in capital letters and looks for the phrase in it.
bool FoundInCopies(const std::string& phrase) {
    const std::string capitals = UpperCase(phrase);
    bool found = false;
    for (const auto& text : HelpTexts) found = found || UpperCase(text).find(capitals) != std::string::npos;
    return found;
}

void SearchHelpForAbsentPhrase(benchmark::State& state) {
    FillHelp();
    const std::string phrase = "calendar view";
    RunPairs(
        state, 51, 1.0 / 3, [&] { benchmark::DoNotOptimize(FindInHelp(phrase)); },
        [&] { benchmark::DoNotOptimize(FoundInCopies(phrase)); });
}
BENCHMARK(SearchHelpForAbsentPhrase)->Iterations(1)->Unit(benchmark::kMillisecond);

QApplication& Application() {
    static int argc = 1;
    static char name[] = "tools_bench";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(argc, argv);
    return application;
}

/// The whole click on "Show Occurrences", with 31,999 Sundays, against filling a list box with as many such texts.
void CountAndListWeekdays(benchmark::State& state) {
    Application();
    NumDays = {MakeDate(1500, 1, 7), MakeDate(1500, 1, 7) + 7 * (MostOccurrences - 1), 0};
    auto* window = ShowWindow<frmNumDays>();
    QListWidget plain;
    plain.setUniformItemSizes(true);
    plain.show();
    // Texts of their own, as any list of dates has: one text shared by all rows would be no list that anybody fills.
    QStringList entries;
    for (int row = 0; row < MostOccurrences; ++row) entries << QStringLiteral("Sunday 10/12/%1").arg(row);
    RunPairs(
        state, 51, 1.5,
        [&] {
            window->cmdGetDays->click();
            if (window->listed->rowCount() != MostOccurrences) std::abort();
        },
        [&] {
            plain.clear();
            plain.addItems(entries);
        });
    window->close();
}
BENCHMARK(CountAndListWeekdays)->Iterations(1)->Unit(benchmark::kMillisecond);
}  // namespace
