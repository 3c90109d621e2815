// Disks for tests: a small one, a read-only one, one whose files may not grow, and a fast one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

/// Mounts a memory disk over a folder, for this process alone; gone with the object. Needs Linux and root.
class MemoryDisk {
  public:
    /// `options` as "size=64k".
    MemoryDisk(const std::filesystem::path& folder, const std::string& options);
    MemoryDisk(const MemoryDisk&) = delete;
    MemoryDisk& operator=(const MemoryDisk&) = delete;
    ~MemoryDisk();

    bool mounted() const { return mounted_; }
    /// True if it refuses every change from now on.
    bool makeReadOnly();

  private:
    std::string folder_;
    bool mounted_ = false;
};

/// While one lives, no file of this process grows beyond the size: writing fails as on a full disk.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(std::uint64_t bytes);
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit();
};

/// While one lives, files are written in place and not synced: for tests that save hundreds of times.
class UnsyncedDisk {
  public:
    UnsyncedDisk();
    UnsyncedDisk(const UnsyncedDisk&) = delete;
    UnsyncedDisk& operator=(const UnsyncedDisk&) = delete;
    ~UnsyncedDisk();
};
