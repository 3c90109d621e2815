// The descriptions of the error numbers, and the numbers of the system's failures.
#include "base/errors.h"

#include <array>
#include <cerrno>
#include <utility>

std::string DescriptionOf(int number) {
    static constexpr std::array<std::pair<int, const char*>, 12> Descriptions{{
        {InvalidCall, "Invalid procedure call or argument"},
        {Overflow, "Overflow"},
        {SubscriptOutOfRange, "Subscript out of range"},
        {TypeMismatch, "Type mismatch"},
        {FileNotFound, "File not found"},
        {DeviceIoError, "Device I/O error"},
        {DiskFull, "Disk full"},
        {InputPastEnd, "Input past end of file"},
        {PermissionDenied, "Permission denied"},
        {PathFileAccess, "Path/File access error"},
        {PathNotFound, "Path not found"},
        {PrinterFault, "Printer error"},
    }};
    for (const auto& [known, description] : Descriptions)
        if (known == number) return description;
    return "Application-defined or object-defined error";
}

int NumberOf(const std::error_code& failure) {
    static constexpr std::array<std::pair<std::errc, int>, 15> Numbers{{
        {std::errc::no_such_file_or_directory, FileNotFound},
        {std::errc::not_a_directory, PathNotFound},
        {std::errc::permission_denied, PermissionDenied},
        {std::errc::operation_not_permitted, PermissionDenied},
        {std::errc::text_file_busy, PermissionDenied},
        {std::errc::device_or_resource_busy, PermissionDenied},
        {std::errc::read_only_file_system, PathFileAccess},
        {std::errc::is_a_directory, PathFileAccess},
        {std::errc::filename_too_long, PathFileAccess},
        {std::errc::invalid_argument, PathFileAccess},
        {std::errc::illegal_byte_sequence, PathFileAccess},
        {std::errc::too_many_symbolic_link_levels, PathFileAccess},
        {std::errc::file_exists, PathFileAccess},
        {std::errc::no_space_on_device, DiskFull},
        {std::errc::file_too_large, DiskFull},
    }};
#ifdef EDQUOT
    if (failure == std::error_code(EDQUOT, std::generic_category())) return DiskFull;  // has no portable name
#endif
    const std::error_condition condition = failure.default_error_condition();
    for (const auto& [known, number] : Numbers)
        if (condition == known) return number;
    return DeviceIoError;
}
