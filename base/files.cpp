// Reading and writing of whole files over the system's own calls, and the guard of unread content.
#include "base/files.h"

#include <unordered_map>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/diskio.h"
#include "base/errors.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"

namespace fs = std::filesystem;

// -- Any file -----------------------------------------------------------------------------------------------------

std::string ReadWholeFile(const Path& path) { return Disk().read(path); }

std::vector<std::string_view> LinesOf(std::string_view bytes) {
    std::vector<std::string_view> lines;
    while (!bytes.empty()) {
        const auto end = bytes.find('\n');
        std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
        if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
    }
    return lines;
}

void WriteWholeFile(const Path& path, std::string_view bytes) { Disk().write(path, bytes); }
void DeleteFile(const Path& path) { Disk().remove(path); }
void RenameFile(const Path& from, const Path& to) { Disk().rename(from, to); }

// -- The data folder ----------------------------------------------------------------------------------------------

namespace {
Path Folder;

/// What the program knows of a file: its bytes as last fully read or written.
struct KnownFile {
    std::size_t size = 0;
    std::size_t hash = 0;
    bool operator==(const KnownFile&) const = default;
};
std::unordered_map<std::string, KnownFile> KnownFiles;
const ClearedAtStart ClearKnownFiles([] { KnownFiles.clear(); });

KnownFile KnownOf(std::string_view bytes) { return {bytes.size(), std::hash<std::string_view>()(bytes)}; }
std::string KeyOf(const Path& path) { return path.lexically_normal().string(); }

/// True if the file on the disk is gone or is what was last fully read or written.
bool HoldsNothingUnknown(const Path& path) {
    std::error_code ignored;
    if (!fs::exists(path, ignored)) return true;
    const std::string bytes = ReadWholeFile(path);
    if (bytes.empty()) return true;
    const auto known = KnownFiles.find(KeyOf(path));
    return known != KnownFiles.end() && known->second == KnownOf(bytes);
}

std::string CopiedIfUnknown(const Path& path) { return HoldsNothingUnknown(path) ? std::string() : CopyToBackup(path); }
}  // namespace

const Path& DataFolder() { return Folder; }
void SetDataFolder(const Path& folder) { Folder = folder; }

Path YearFolder(int year) { return PathInFolder(DataFolder(), Padded(year, 4)); }

Path PathInFolder(const Path& folder, std::string_view name) {
    const Path wanted = folder / fs::u8path(Utf8Of(name));
    std::error_code failure;
    if (fs::exists(wanted, failure)) return wanted;
    return FindIgnoringCase(folder, name).value_or(wanted);
}

// -- Data files, guarded ------------------------------------------------------------------------------------------

void ReadDataLines(const Path& path, const std::function<void(std::string_view, int)>& take) {
    MarkNotFullyRead(path);
    const std::string bytes = ReadWholeFile(path);
    int number = 0;
    for (const std::string_view line : LinesOf(bytes)) take(line, ++number);
    MarkFullyRead(path, bytes);
}

void MarkNotFullyRead(const Path& path) { KnownFiles.erase(KeyOf(path)); }
void MarkFullyRead(const Path& path, std::string_view bytes) { KnownFiles[KeyOf(path)] = KnownOf(bytes); }

std::string SaveDataFile(const Path& path, std::string_view bytes) {
    const std::string told = CopiedIfUnknown(path);
    WriteWholeFile(path, bytes);
    MarkFullyRead(path, bytes);
    return told;
}

std::string DeleteDataFile(const Path& path) {
    const std::string told = CopiedIfUnknown(path);
    DeleteFile(path);
    KnownFiles.erase(KeyOf(path));
    return told;
}

std::string RenameDataFile(const Path& from, const Path& to) {
    const std::string told = CopiedIfUnknown(to);
    RenameFile(from, to);
    if (const auto known = KnownFiles.find(KeyOf(from)); known != KnownFiles.end()) {
        KnownFiles[KeyOf(to)] = known->second;
        KnownFiles.erase(KeyOf(from));
    } else {
        KnownFiles.erase(KeyOf(to));
    }
    return told;
}

namespace {
/// A name in the Backup folder that no earlier copy has.
Path FreeBackupName(const Path& folder, const Path& original) {
    const DateTime now = Now();
    const std::string stamp = FormatDate(now.date, "yyyy-mm-dd") + " " + FormatTime(now.second, "hh-nn-ss");
    // A year folder's file carries the year in its copy's name: the year folders all hold a "Notes.dat".
    const std::string parent =
        original.parent_path() == DataFolder() ? "" : original.parent_path().filename().string() + " ";
    std::error_code ignored;
    for (int copy = 1;; ++copy) {
        Path name = folder / (parent + original.stem().string() + " " + stamp +
                              (copy > 1 ? " " + std::to_string(copy) : "") + original.extension().string());
        if (!fs::exists(name, ignored)) return name;
    }
}
}  // namespace

std::string CopyToBackup(const Path& path) {
    std::error_code ignored;
    if (!fs::exists(path, ignored)) return {};
    try {
        const std::string bytes = ReadWholeFile(path);
        const Path folder = DataPath("Backup");
        fs::create_directories(folder);
        const Path copy = FreeBackupName(folder, path);
        WriteWholeFile(copy, bytes);
        if (ReadWholeFile(copy) != bytes) throw Error(DeviceIoError);
        return "The file \"" + TextOfUtf8(path.filename().string()) +
               "\" held something that was not read. It was kept as \"" + TextOfUtf8(copy.filename().string()) +
               "\" in the folder \"Backup\".";
    } catch (const std::exception& failure) {
        throw Error(PathFileAccess, "The file \"" + TextOfUtf8(path.filename().string()) +
                                        "\" could not be copied to \"Backup\" and was left as it is. " +
                                        failure.what());
    }
}

void TellOfBackup(const std::string& sentence) {
    if (!sentence.empty()) ShowMessage(sentence);
}
