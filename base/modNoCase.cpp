// File names as text, and existence tests that ignore their case.
#include "base/modNoCase.h"

#include "base/dialogs.h"
#include "base/errors.h"
#include "base/text.h"

namespace fs = std::filesystem;

fs::path PathOfText(std::string_view name) {
    const std::string utf8 = Utf8Of(name);
    return std::u8string(utf8.begin(), utf8.end());
}

std::string TextOfPath(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return TextOfUtf8(std::string(utf8.begin(), utf8.end()));
}

namespace {
/// The entry that equals the name; throws std::filesystem::filesystem_error.
std::optional<fs::path> FindEntry(const fs::path& folder, std::string_view name) {
    std::optional<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string text = TextOfPath(entry.path().filename());
        if (text == name) return entry.path();
        if (!found && EqualIgnoringCase(text, name)) found = entry.path();
    }
    return found;
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
    const fs::path exact = folder / PathOfText(name);
    const auto found = fs::exists(exact, failure) ? exact : FindIgnoringCase(folder, name);
    return found && !fs::is_directory(*found, failure);
}

bool FolderExists(const fs::path& parent, std::string_view name) {
    try {
        const auto found = FindEntry(parent, name);
        return found && fs::is_directory(*found);
    } catch (const fs::filesystem_error& failure) {
        const int code = NumberOf(failure.code());
        const int number = code == FileNotFound ? PathNotFound : code;  // what is missing is the parent
        ShowMessage("Error encountered during Events Folder check." + std::string(CrLf) +
                    "Error Number: " + std::to_string(number) + CrLf + "Error Description: " + DescriptionOf(number));
        return false;
    }
}
