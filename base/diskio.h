// The disk: the few system calls that whole files need. Replaceable, so that tests can let it fail.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

struct DiskCalls {
    std::function<std::string(const std::filesystem::path&)> read;
    std::function<void(const std::filesystem::path&, std::string_view)> write;
    std::function<void(const std::filesystem::path&)> remove;
    std::function<void(const std::filesystem::path&, const std::filesystem::path&)> rename;
};

/// The calls in place. They fail as base/files.h says.
const DiskCalls& Disk();

/// Puts other calls in place; an empty table brings the system's back. For tests.
void SetDisk(DiskCalls calls);
