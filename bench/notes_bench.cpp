// Notes: the term that a key brings, a key in a long note, searching and saving a year.
//
// 2026-11-23, four virtual cores, ext4, medians:
//   FindTermAmong100000       1.76 to 1.82 of ten terms     (aim: 2; 22 ns a fragment)
//   KeyInANoteOfOneMegabyte   1.25 of an empty note         (aim: 3; 0.25 ms for a letter, its completion and a blank)
//   SearchAYear/word          0.07 to 0.09 of contains      (aim: 0.33; 0.5 ms for 3.7 MB)
//   SearchAYear/shortWord     0.06 to 0.08                  (aim: 0.33)
//   SearchAYear/words         0.14 to 0.16                  (aim: 0.33)
//   SaveAYear                 1.01 to 1.09 of the raw calls (aim: 1.2; 3.5 ms)
#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/dialogs.h"
#include "base/files.h"
#include "base/text.h"
#include "bench/pairs.h"
#include "forms/qt/text.h"
#include "notes/frmNotes.h"
#include "notes/modFUT.h"
#include "notes/modNotes.h"
#include "notes/modSearch.h"
#include "shell/modPreferences.h"

namespace {
void Check(bool good) {
    if (good) return;
    std::perror("notes_bench");
    std::exit(1);
}

/// Words that look like what people write, the same in every run.
std::string Prose(std::size_t length, unsigned seed) {
    static constexpr const char* Words[] = {"call",  "the",    "office", "about",   "contract", "Dentist",
                                            "bring", "card",   "lunch",  "with",    "Sam",      "at",
                                            "noon",  "garden", "roses",  "train",   "from",     "Platform",
                                            "buy",   "ticket", "review", "quarter", "visit",    "months"};
    std::string text;
    while (text.size() < length) {
        seed = seed * 1103515245 + 12345;
        text += Words[seed / 65536 % std::size(Words)];
        text += text.size() / 70 != (text.size() - 6) / 70 ? "\r\n" : " ";
    }
    text.resize(length);
    return text;
}

std::vector<std::string> SomeTerms(std::size_t count) {
    std::vector<std::string> terms;
    unsigned seed = 7;
    while (terms.size() < count) {
        std::string term;
        for (int i = 0; i < 9; ++i) {
            seed = seed * 1103515245 + 12345;
            term += static_cast<char>('a' + seed / 65536 % 26);
        }
        terms.push_back(term);
    }
    std::sort(terms.begin(), terms.end(), InListOrder());
    return terms;
}

/// Looks up fragments of one to four letters, a thousand of them: some begin a term, some do not.
void FindFragments(const TermIndex& index, const std::vector<std::string>& terms) {
    std::size_t found = 0;
    for (std::size_t i = 0; i < 1000; ++i) {
        const std::string& term = terms[i * 97 % terms.size()];
        found += index.find(std::string_view(term).substr(0, 1 + i % 4)).has_value();
        found += index.find(i % 2 == 0 ? "qq1" : "zz").has_value();
    }
    benchmark::DoNotOptimize(found);
}

void FindTermAmong100000(benchmark::State& state) {
    const auto few = SomeTerms(10);
    const auto many = SomeTerms(100'000);
    const TermIndex ofFew(few), ofMany(many);
    RunPairs(
        state, 101, 2.0, [&] { FindFragments(ofMany, many); }, [&] { FindFragments(ofFew, few); });
}
BENCHMARK(FindTermAmong100000)->Iterations(1)->Unit(benchmark::kMillisecond);

/// A folder of its own that is the data folder, and boxes that answer by themselves.
class Folder {
  public:
    Folder() {
        std::filesystem::create_directories(path);
        SetDataFolder(path);
        SetDialogs({[](const std::string&, Buttons, const std::string&) { return Answer::Ok; }, {}});
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { std::filesystem::remove_all(path); }
    const Path path = Path("/var/tmp") / ("tasmoro-bench-" + std::to_string(getpid()));
};

QApplication& Application() {
    static int count = 1;
    static char name[] = "notes_bench";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(count, arguments);
    return application;
}

/// One letter that brings a completion, and the blank that sends it away.
void TypeWord(frmNotes& window) {
    for (const auto& [key, text] : {std::pair(Qt::Key_B, u'b'), std::pair(Qt::Key_Space, u' ')}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(QChar(text)));
        QApplication::sendEvent(window.txtNotes, &press);
        if (key == Qt::Key_B) Check(SuggestionShowing);
    }
}

void KeyInANoteOfOneMegabyte(benchmark::State& state) {
    Application();
    const Folder folder;
    Terms.terms = {"agenda", "budget", "contract"};
    Terms.index = TermIndex(Terms.terms);
    AutoCompleteOn = true;
    AutoStartPosition = 0;
    frmNotes empty, full;
    empty.showNote(QStringLiteral("Empty"), "");
    full.showNote(QStringLiteral("Full"), Prose(1 << 20, 3) + "\r\n");
    for (frmNotes* window : {&empty, &full}) {
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        QApplication::processEvents();
        window->txtNotes->setCaret(window->txtNotes->length());
        QApplication::processEvents();
    }
    RunPairs(
        state, 201, 3.0, [&] { TypeWord(full); }, [&] { TypeWord(empty); });
    NotesChanged = false;
}
BENCHMARK(KeyInANoteOfOneMegabyte)->Iterations(1)->Unit(benchmark::kMillisecond);

/// A year of 366 notes of 10 KB in the first slot.
void FillYear() {
    Calendar.yearOnDisplay = 2028;
    NotesOfYear& notes = Notes.years[ThisYear];
    notes = {};
    notes.year = 2028;
    for (Date date = MakeDate(2028, 1, 1); YearOf(date) == 2028; ++date) {
        notes.dates.push_back(FormatDate(date, "mm/dd/yy"));
        notes.cells.push_back(CellText(CellOf(date)));
        notes.texts.push_back(EncodedLineBreaks(Prose(10'000, static_cast<unsigned>(date.number))));
        notes.list.push_back(notes.dates.back());
    }
}

void SearchAYear(benchmark::State& state, const char* phrase) {
    FillYear();
    std::vector<QString> shown;
    for (const auto& text : NoteTexts) shown.push_back(FromText(text));
    const QString wanted = QString::fromLatin1(phrase);
    RunPairs(
        state, 101, 1.0 / 3, [&] { Check(NoteDatesWithPhrase(ThisYear, 0, phrase).empty()); },
        [&] {
            for (const QString& text : shown) Check(!text.contains(wanted, Qt::CaseInsensitive));
        });
}
BENCHMARK_CAPTURE(SearchAYear, word, "plumber")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SearchAYear, shortWord, "tea")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SearchAYear, words, "the garden of the office")->Iterations(1)->Unit(benchmark::kMillisecond);

/// The least that makes a file old or new, whole: write, fsync, rename, fsync of the folder.
void RawSave(const Path& folder, const std::string& bytes) {
    const Path temporary = folder / "raw.tmp";
    const int descriptor = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    Check(write(descriptor, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    Check(fsync(descriptor) == 0 && close(descriptor) == 0);
    Check(rename(temporary.c_str(), (folder / "raw.dat").c_str()) == 0);
    const int directory = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    Check(fsync(directory) == 0 && close(directory) == 0);
}

void SaveAYear(benchmark::State& state) {
    const Folder folder;
    FillYear();
    const auto save = [] {
        NoteDeletePending = true;
        Check(SaveThisYearsNotes());
    };
    save();
    const std::string bytes = ReadWholeFile(folder.path / "2028" / "Notes.dat");
    Check(bytes.size() > 3'600'000);
    RunPairs(state, 31, 1.2, save, [&] { RawSave(folder.path / "2028", bytes); });
}
BENCHMARK(SaveAYear)->Iterations(1)->Unit(benchmark::kMillisecond);
}  // namespace
