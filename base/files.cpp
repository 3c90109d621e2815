// Reading and writing of whole files over the system's own calls, and the guard of unread content.
#include "base/files.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/diskio.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"

namespace fs = std::filesystem;

// -- Any file -----------------------------------------------------------------------------------------------------

std::string ReadWholeFile(const Path& path) { return Disk().read(path); }

namespace {
/// Takes the first line off the front, with its end.
std::string_view TakeLine(std::string_view& bytes) {
    const auto end = bytes.find('\n');
    std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}
}  // namespace

std::vector<std::string_view> LinesOf(std::string_view bytes) {
    std::vector<std::string_view> lines;
    while (!bytes.empty()) lines.push_back(TakeLine(bytes));
    return lines;
}

void WriteWholeFile(const Path& path, std::string_view bytes) { Disk().write(path, bytes); }
void AppendToFile(const Path& path, std::string_view bytes) { Disk().append(path, bytes); }
void DeleteFile(const Path& path) { Disk().remove(path); }
void MakeFolder(const Path& folder) { Disk().makeFolder(folder); }

// -- The data folder ----------------------------------------------------------------------------------------------

namespace {
Path Folder;

/// The bytes of each file as last fully read or written. All of them, not a sum: what a save may destroy is decided
/// here.
std::unordered_map<std::string, std::string> KnownFiles;
const ClearedAtStart ClearKnownFiles([] { KnownFiles.clear(); });

std::string KeyOf(const Path& path) { return path.lexically_normal().string(); }
}  // namespace

const Path& DataFolder() { return Folder; }
void SetDataFolder(const Path& folder) { Folder = folder.has_filename() ? folder : folder.parent_path(); }

Path YearFolder(int year) { return PathInFolder(DataFolder(), Padded(year, 4)); }

Path PathInFolder(const Path& folder, std::string_view name) {
    Path wanted = folder / PathOfText(name);
    std::error_code failure;
    if (fs::exists(wanted, failure)) return wanted;
    return FindIgnoringCase(folder, name).value_or(wanted);
}

// -- Data files, guarded ------------------------------------------------------------------------------------------

void ReadDataLines(const Path& path, const std::function<void(std::string_view, int)>& take) {
    MarkNotFullyRead(path);
    std::string bytes = ReadNamedFile(path);
    int number = 0;
    try {
        for (std::string_view rest = bytes; !rest.empty();) take(TakeLine(rest), ++number);
    } catch (const Error& error) {
        throw AtLine(error, path, number);
    }
    KnownFiles[KeyOf(path)] = std::move(bytes);
}

namespace {
Error AtPlace(const Error& error, const std::string& place, const Path& path) {
    std::string name = TextOfPath(path.lexically_relative(DataFolder()));
    std::replace(name.begin(), name.end(), '/', '\\');
    return {error.number(), error.what() + (" (" + place) + "the file \"" + name + "\")"};
}
}  // namespace

Error AtLine(const Error& error, const Path& path, int number) {
    return AtPlace(error, "line " + std::to_string(number) + " of ", path);
}

Error OfFile(const Error& error, const Path& path) { return AtPlace(error, "", path); }

std::string ReadNamedFile(const Path& path) {
    try {
        return ReadWholeFile(path);
    } catch (const Error& error) {
        throw OfFile(error, path);
    }
}

void MarkNotFullyRead(const Path& path) { KnownFiles.erase(KeyOf(path)); }
void MarkFullyRead(const Path& path, std::string_view bytes) { KnownFiles[KeyOf(path)] = bytes; }

namespace {
/// A name in the Backup folder that no earlier copy has.
Path FreeBackupName(const Path& folder, const Path& original) {
    const DateTime now = Now();
    const std::string stamp = FormatDate(now.date, " yyyy-mm-dd ") + FormatTime(now.second, "hh-nn-ss");
    Path stem;
    // A year folder's file carries the year in its copy's name: the year folders all hold a "Notes.dat".
    if (original.parent_path() != DataFolder()) (stem = original.parent_path().filename()) += " ";
    (stem += original.stem()) += stamp;
    std::error_code ignored;
    for (int copy = 1;; ++copy) {
        Path name = folder / stem;
        if (copy > 1) name += " " + std::to_string(copy);
        name += original.extension();
        if (fs::symlink_status(name, ignored).type() == fs::file_type::not_found) return name;
    }
}

/// The failed copy's error. It stands for the save as well, which is refused then.
Error CopyFailed(const Path& path, const std::exception& failure) {
    return {PathFileAccess, "The file \"" + TextOfPath(path.filename()) +
                                "\" could not be copied to \"Backup\" and was left as it is. " + failure.what()};
}

std::string CopyBytesToBackup(const Path& path, std::string_view bytes) {
    const Path folder = DataPath("Backup");
    MakeFolder(folder);
    const Path copy = FreeBackupName(folder, path);
    WriteWholeFile(copy, bytes);
    if (ReadWholeFile(copy) != bytes) throw Error(DeviceIoError);
    return "The file \"" + TextOfPath(path.filename()) + "\" as it was before is kept as \"" +
           TextOfPath(copy.filename()) + "\" in the folder \"Backup\".";
}

/// Copies what the file holds, unless that is nothing, known, or what is about to be written. What has been copied is
/// known from then on.
std::string CopiedIfUnknown(const Path& path, std::string_view replacement = {}) {
    std::error_code failure;
    if (fs::status(path, failure).type() == fs::file_type::not_found) return {};
    try {
        const auto known = KnownFiles.find(KeyOf(path));
        if (known != KnownFiles.end() && Disk().holds(path, known->second)) return {};
        if (Disk().holds(path, replacement)) return {};
        const std::string bytes = ReadWholeFile(path);
        if (bytes.empty()) return {};
        std::string told = CopyBytesToBackup(path, bytes);
        MarkFullyRead(path, bytes);
        return told;
    } catch (const std::exception& failed) {
        throw CopyFailed(path, failed);
    }
}

/// Copies what is unknown of the file, then runs `change`. The sentence of the copy is told also if the change fails.
template <class Change>
std::string Guarded(const Path& path, std::string_view replacement, Change&& change) {
    std::string told = CopiedIfUnknown(path, replacement);
    try {
        change();
    } catch (const Error& error) {
        if (told.empty()) throw;
        throw Error(error.number(), error.what() + std::string(CrLf) + told);
    }
    return told;
}
}  // namespace

std::string SaveDataFile(const Path& path, std::string bytes) {
    return Guarded(path, bytes, [&] {
        WriteWholeFile(path, bytes);
        KnownFiles[KeyOf(path)] = std::move(bytes);
    });
}

std::string DeleteDataFile(const Path& path) {
    return Guarded(path, {}, [&] {
        DeleteFile(path);
        MarkNotFullyRead(path);
    });
}

std::string CopyToBackup(const Path& path) {
    std::error_code failure;
    if (fs::status(path, failure).type() == fs::file_type::not_found) return {};
    try {
        return CopyBytesToBackup(path, ReadWholeFile(path));
    } catch (const std::exception& failed) {
        throw CopyFailed(path, failed);
    }
}

void TellOfBackup(const std::string& sentence) {
    if (!sentence.empty()) ShowMessage(sentence);
}
