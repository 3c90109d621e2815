// File names as text, and existence tests that ignore their case, on every file system.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// A file name given as Windows-1252 text.
std::filesystem::path PathOfText(std::string_view name);
/// A file name as Windows-1252 text; characters that the code page does not have become "?".
std::string TextOfPath(const std::filesystem::path& path);

/// The entry of the folder whose name equals the text (Windows-1252) ignoring case, the exact name preferred; nothing
/// if there is none or the folder cannot be listed.
std::optional<std::filesystem::path> FindIgnoringCase(const std::filesystem::path& folder, std::string_view name);

/// True if the folder holds a file of that name: hidden and read-only ones count, and links that lead nowhere (reading
/// those fails); folders do not.
bool FileExists(const std::filesystem::path& folder, std::string_view name);

/// True if the parent holds a folder of that name. A failing file system is told in a message box and answers false.
bool FolderExists(const std::filesystem::path& parent, std::string_view name);
