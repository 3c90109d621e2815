// A fresh data folder for each test.
#include "tests/support/folder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "base/clock.h"
#include "base/state.h"

namespace fs = std::filesystem;

namespace {
std::string BytesOf(const Path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
}  // namespace

TemporaryFolder::TemporaryFolder()
    : path_(fs::temp_directory_path() / ("tasmoro-test-" + std::to_string(std::random_device{}()))) {
    fs::create_directories(path_);
    SetDataFolder(path_);
    ClearAllState();
    FixClock(2026, 11, 22, 19, 39, 5);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
    SetClock({});
}

void TemporaryFolder::put(std::string_view name, std::string_view bytes) const {
    const Path path = path_ / name;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

std::string TemporaryFolder::get(std::string_view name) const {
    const Path path = path_ / name;
    return fs::is_regular_file(path) ? BytesOf(path) : "(none)";
}

std::string TemporaryFolder::backups() const {
    if (!fs::exists(path_ / "Backup")) return {};
    std::vector<Path> files;
    for (const auto& entry : fs::directory_iterator(path_ / "Backup")) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::string all;
    for (const auto& file : files) all += BytesOf(file);
    return all;
}

void FixClock(int year, int month, int day, int hour, int minute, int second) {
    const DateTime moment{MakeDate(year, month, day), hour * 3600 + minute * 60 + second};
    SetClock([moment] { return moment; });
}
