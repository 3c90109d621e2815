// Existence tests that ignore the case of names.
#include "base/modNoCase.h"

#include "base/dialogs.h"
#include "base/errors.h"
#include "base/text.h"

namespace fs = std::filesystem;

namespace {
/// The entry that equals the name; throws std::filesystem::filesystem_error.
std::optional<fs::path> FindEntry(const fs::path& folder, std::string_view name) {
    std::optional<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string text = TextOfUtf8(entry.path().filename().string());
        if (text == name) return entry.path();
        if (!found && EqualIgnoringCase(text, name)) found = entry.path();
    }
    return found;
}

/// The error number of a failed listing.
int NumberOf(const std::error_code& code) {
    if (code == std::errc::permission_denied) return PermissionDenied;
    if (code == std::errc::no_such_file_or_directory) return PathNotFound;
    return DeviceIoError;
}
}  // namespace

std::optional<fs::path> FindIgnoringCase(const fs::path& folder, std::string_view name) {
    try {
        return FindEntry(folder, name);
    } catch (const fs::filesystem_error&) {
        return std::nullopt;
    }
}

bool FileExists(const fs::path& folder, std::string_view name) {
    std::error_code failure;
    const fs::path exact = folder / fs::u8path(Utf8Of(name));
    const auto found = fs::exists(exact, failure) ? exact : FindIgnoringCase(folder, name);
    return found && !fs::is_directory(*found, failure);
}

bool FolderExists(const fs::path& parent, std::string_view name) {
    try {
        const auto found = FindEntry(parent, name);
        return found && fs::is_directory(*found);
    } catch (const fs::filesystem_error& failure) {
        const int number = NumberOf(failure.code());
        ShowMessage("Error encountered during Events Folder check." + std::string(CrLf) +
                    "Error Number: " + std::to_string(number) + CrLf + "Error Description: " + DescriptionOf(number));
        return false;
    }
}
