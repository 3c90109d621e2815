// What the files of birthdays and alerts share: reading them, and the save with its message.
#pragma once

#include <string>
#include <vector>

/// Fills `lines` with the lines of the data folder's file that are not blank and answers their numbers (from 1). No
/// file: no lines. A failure throws and leaves none.
std::vector<int> ReadReminderLines(const char* file, std::vector<std::string>& lines);

/// Throws Error 13 that names the file and the first few of the lines that could not be understood; nothing for none.
/// Those lines are in the tables as they stand, so that no save loses them.
void TellBadLines(const char* file, const std::vector<int>& numbers);

/// How a save goes about it.
struct ReminderSave {
    bool keepPrevious = false;      // the file as it was is first copied to "Backup"
    const char* message = nullptr;  // shown once the file is written; none: only a copy of unread content is told
};

/// Rewrites the data folder's file from the lines that are not blank; deletes it, without a message, if there are none.
void SaveReminderLines(const char* file, const std::vector<std::string>& lines, const ReminderSave& how);
