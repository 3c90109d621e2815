// The files of birthdays and alerts.
#include "reminders/modReminderFile.h"

#include <algorithm>

#include "base/dialogs.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/modNoCase.h"
#include "base/text.h"

namespace {
/// "line 2, 3, 5 and 7 more": the first few say where to look, all of them would only lengthen the box.
std::string NamedLines(const std::vector<int>& numbers) {
    constexpr std::size_t Named = 5;
    std::string list = "line ";
    for (std::size_t i = 0; i < std::min(Named, numbers.size()); ++i)
        list += (i > 0 ? ", " : "") + std::to_string(numbers[i]);
    if (numbers.size() > Named) list += " and " + std::to_string(numbers.size() - Named) + " more";
    return list;
}
}  // namespace

std::vector<int> ReadReminderLines(const char* file, std::vector<std::string>& lines) {
    std::vector<int> numbers;
    // The texts there are keep their memory: a list is read again after each save.
    const auto keep = [&](std::string_view line, int number) {
        if (line.empty()) return;
        if (numbers.size() < lines.size())
            lines[numbers.size()] = line;
        else
            lines.emplace_back(line);
        numbers.push_back(number);
    };
    try {
        if (FileExists(DataFolder(), file)) ReadDataLines(DataPath(file), keep);
    } catch (...) {
        lines.clear();
        throw;
    }
    lines.resize(numbers.size());
    return numbers;
}

void TellBadLines(const char* file, const std::vector<int>& numbers) {
    if (numbers.empty()) return;
    throw Error(TypeMismatch, DescriptionOf(TypeMismatch) + " in \"" + file + "\", " + NamedLines(numbers) +
                                  ". What could not be read is kept as it stands.");
}

void SaveReminderLines(const char* file, const std::vector<std::string>& lines, const ReminderSave& how) {
    const Path path = DataPath(file);
    std::string bytes;
    for (const std::string& line : lines)
        if (!line.empty()) bytes.append(line).append(CrLf);
    const std::string previous = how.keepPrevious ? CopyToBackup(path) : "";
    const std::string unread = bytes.empty() ? DeleteDataFile(path) : SaveDataFile(path, bytes);
    if (bytes.empty() || how.message == nullptr) return TellOfBackup(unread);
    const std::string& told = unread.empty() ? previous : unread;
    ShowMessage(told.empty() ? how.message : std::string(how.message) + CrLf + told);
}
