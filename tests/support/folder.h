// A fresh data folder for each test, removed after it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/files.h"

/// Makes a new empty folder the data folder, clears all tables, and sets the clock to 22 November 2026, 19:39:05.
class TemporaryFolder {
  public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const Path& path() const { return path_; }
    /// Writes a file below the folder, making its folders.
    void put(std::string_view name, std::string_view bytes) const;
    /// The file's bytes, "(none)" if there is no such file.
    std::string get(std::string_view name) const;
    bool has(std::string_view name) const { return get(name) != "(none)"; }
    /// The bytes of all files in "Backup", one after another in the order of their names.
    std::string backups() const;

  private:
    Path path_;
};

/// Sets the clock to a fixed moment.
void FixClock(int year, int month, int day, int hour = 12, int minute = 0, int second = 0);
