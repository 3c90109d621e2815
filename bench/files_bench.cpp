// Whole files against what the system and the toolkit offer, with 1 MB files in /var/tmp (a real disk, not memory).
//
// 2026-11-23, four virtual cores, ext4, medians of 101 pairs:
//   WriteOneMegabyte                 0.95 to 1.01 of the raw calls  (aim: 1.15; 1.2 ms)
//   ReadOneMegabyteIntoLines         0.09 to 0.10 of readLine       (aim: 0.33; 0.2 ms against 2.1 ms)
//   ReadOneMegabyteIntoCopiedLines   0.25 to 0.26 of readLine       (aim: 0.33; 0.5 ms, most of it the copies)
#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QStringList>
#include <QTextStream>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/files.h"
#include "bench/pairs.h"

namespace {
const std::string Megabyte = [] {
    std::string bytes;
    while (bytes.size() < (1u << 20)) bytes += "03/04/26:020300:Dentist at nine, bring the card and the old X-rays\r\n";
    bytes.resize((1u << 20) - 2);
    return bytes + "\r\n";
}();

/// A folder of its own, removed at the end.
class Folder {
  public:
    Folder() { std::filesystem::create_directories(path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { std::filesystem::remove_all(path); }
    const Path path = Path("/var/tmp") / ("tasmoro-bench-" + std::to_string(getpid()));
};

void Check(bool good) {
    if (good) return;
    std::perror("files_bench");
    std::exit(1);
}

/// The least that makes a file old or new, whole: write, fsync, rename, fsync of the folder. Nothing is checked twice.
void RawSave(const Path& folder, const Path& temporary, const Path& file) {
    const int descriptor = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    Check(write(descriptor, Megabyte.data(), Megabyte.size()) == static_cast<ssize_t>(Megabyte.size()));
    Check(fsync(descriptor) == 0 && close(descriptor) == 0);
    Check(rename(temporary.c_str(), file.c_str()) == 0);
    const int directory = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    Check(fsync(directory) == 0 && close(directory) == 0);
}

void WriteOneMegabyte(benchmark::State& state) {
    const Folder folder;
    const Path temporary = folder.path / "raw.tmp", raw = folder.path / "raw.dat", whole = folder.path / "whole.dat";
    RunPairs(
        state, 101, 1.15, [&] { WriteWholeFile(whole, Megabyte); }, [&] { RawSave(folder.path, temporary, raw); });
}
BENCHMARK(WriteOneMegabyte)->Iterations(1)->Unit(benchmark::kMillisecond);

/// The file's lines by the toolkit's own means.
QStringList LinesByTheToolkit(const QString& name) {
    QStringList lines;
    QFile file(name);
    Check(file.open(QIODevice::ReadOnly));
    QTextStream stream(&file);
    stream.setEncoding(QStringConverter::Latin1);
    while (!stream.atEnd()) lines.append(stream.readLine());
    return lines;
}

template <class Ours>
void CompareReading(benchmark::State& state, Ours ours) {
    const Folder folder;
    const Path path = folder.path / "lines.dat";
    WriteWholeFile(path, Megabyte);
    const QString name = QString::fromStdString(path.string());
    const auto theirs = [&] { Check(LinesByTheToolkit(name).size() > 15000); };
    RunPairs(
        state, 101, 1.0 / 3, [&] { Check(ours(path) > 15000); }, theirs);
}

void ReadOneMegabyteIntoLines(benchmark::State& state) {
    CompareReading(state, [](const Path& path) { return LinesOf(ReadWholeFile(path)).size(); });
}
BENCHMARK(ReadOneMegabyteIntoLines)->Iterations(1)->Unit(benchmark::kMillisecond);

/// The same as a reader that keeps a copy of every line has it, what the guard keeps included.
void ReadOneMegabyteIntoCopiedLines(benchmark::State& state) {
    CompareReading(state, [](const Path& path) {
        std::vector<std::string> lines;
        ReadDataLines(path, [&](std::string_view line, int) { lines.emplace_back(line); });
        return lines.size();
    });
}
BENCHMARK(ReadOneMegabyteIntoCopiedLines)->Iterations(1)->Unit(benchmark::kMillisecond);
}  // namespace
