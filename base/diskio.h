// The disk: the few system calls that whole files need. Replaceable, so that tests can let it fail.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

/// Each call fails as its procedure in base/files.h says.
struct DiskCalls {
    std::function<std::string(const std::filesystem::path&)> read = {};
    std::function<void(const std::filesystem::path&, std::string_view)> write = {};
    std::function<void(const std::filesystem::path&)> remove = {};
    std::function<void(const std::filesystem::path&, std::string_view)> append = {};
    std::function<void(const std::filesystem::path&)> makeFolder = {};
    /// Whether the file holds exactly these bytes. It is compared piece by piece, as it is in nearly every save.
    std::function<bool(const std::filesystem::path&, std::string_view)> holds = {};
};

/// The calls in place.
const DiskCalls& Disk();

/// Puts other calls in place; those left empty are the system's. For tests.
void SetDisk(DiskCalls calls);
