// Whole files: read at once into lines, written so that a file is always the old one or the new one, whole; and the
// guard that copies to "Backup" what a save would destroy although nobody has read it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"

using Path = std::filesystem::path;

// -- Any file -----------------------------------------------------------------------------------------------------

/// All bytes of the file. Throws Error 53 if there is none, 76 if its folder is missing, 70 or 75 if it cannot be
/// opened, 57 if the disk fails.
std::string ReadWholeFile(const Path& path);

/// Parts the bytes into lines, ended by CR LF or bare LF; a last line without an end, or with half of one (CR), counts;
/// an end at the very end begins no further line. The views point into `bytes`.
std::vector<std::string_view> LinesOf(std::string_view bytes);

/// Puts the bytes in the file's place: a temporary file in the same folder, every write's count checked, synced, its
/// size checked, renamed over the old file, the folder synced. Replaces a read-only file; what a link leads to, not the
/// link. A failure leaves the old file as it was, removes the temporary and throws Error 61 (disk full), 70, 75, 76 or
/// 57; only when the very last step fails, the syncing of the folder, the new file is in place already, whole.
void WriteWholeFile(const Path& path, std::string_view bytes);

/// Adds the bytes at the file's end, synced; makes the file if there is none. A failure cuts off what was added and
/// throws what WriteWholeFile throws.
void AppendToFile(const Path& path, std::string_view bytes);

/// Deletes the file and syncs the folder. No file is no failure. Throws Error 70 or 75.
void DeleteFile(const Path& path);

/// Makes the folder, and those above it, if it is not there; synced, so that it outlives a crash as surely as the files
/// saved in it. Throws Error 61, 70, 75 or 76.
void MakeFolder(const Path& folder);

// -- The data folder ----------------------------------------------------------------------------------------------

/// The folder that holds the program and all its data. Set once at start-up from the program's own file.
const Path& DataFolder();
void SetDataFolder(const Path& folder);

/// The folder of a year's notes and icons below the data folder.
Path YearFolder(int year);

/// A name inside a folder; the name is Windows-1252 text. Finds an existing entry ignoring case; where there is none,
/// the name as it stands.
Path PathInFolder(const Path& folder, std::string_view name);
/// The same in the data folder.
inline Path DataPath(std::string_view name) { return PathInFolder(DataFolder(), name); }

// -- Data files, guarded ------------------------------------------------------------------------------------------

/// Reads the file and calls `take` with each line and its number (from 1). The file counts as read to its end only
/// when the last call has returned; an exception of `take` passes through and leaves it counted as not fully read. An
/// Error is thrown on as AtLine makes it.
void ReadDataLines(const Path& path, const std::function<void(std::string_view line, int number)>& take);

/// The error with the place it came from in its description: 'Type mismatch (line 2 of the file "2009\Notes.dat")'.
Error AtLine(const Error& error, const Path& path, int number);
/// The same for what is wrong with a whole file: 'File not found (the file "Images\9.ico")'.
Error OfFile(const Error& error, const Path& path);
/// ReadWholeFile, with the errors that OfFile makes.
std::string ReadNamedFile(const Path& path);

/// Marks a file as holding something that the tables do not: a line that was passed over, say.
void MarkNotFullyRead(const Path& path);

/// Marks a file as fully held in memory although its reader knows better than ReadDataLines.
void MarkFullyRead(const Path& path, std::string_view bytes);

/// Writes a data file. If what is on the disk now is neither what was last fully read or written by this program nor
/// what is to be written, its exact bytes are first copied to "Backup". Returns "" or the sentence that tells of the
/// copy, to be added to the save's message. Throws what WriteWholeFile throws, with that sentence added to the
/// description if a copy was made; or Error 75 if the copy fails, and then nothing is written.
std::string SaveDataFile(const Path& path, std::string bytes);

/// Deletes a data file under the same guard.
std::string DeleteDataFile(const Path& path);

/// Copies the file to "Backup" under its name with date and time added, never over an earlier copy. Returns the
/// sentence that tells of it; "" if there is no file. Throws Error 75 if the copy fails.
std::string CopyToBackup(const Path& path);

/// Shows the sentence of a save that has no message of its own; nothing for "".
void TellOfBackup(const std::string& sentence);
