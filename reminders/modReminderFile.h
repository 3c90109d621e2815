// What the files of birthdays and alerts share: reading them, and the save with its message.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Calls `take` with each line of the data folder's file that is not blank. No file: no lines. After the last line
/// throws Error 13 if `take` has answered false for any: those lines are in the tables as they stand, so that no save
/// loses them.
void ReadReminderLines(const char* file, const std::function<bool(std::string_view line)>& take);

/// How a save goes about it.
struct ReminderSave {
    bool keepPrevious = false;      // the file as it was is first copied to "Backup"
    const char* message = nullptr;  // shown once the file is written; none: only a copy of unread content is told
};

/// Rewrites the data folder's file from the lines that are not blank; deletes it, without a message, if there are none.
void SaveReminderLines(const char* file, const std::vector<std::string>& lines, const ReminderSave& how);
