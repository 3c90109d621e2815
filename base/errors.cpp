// The descriptions of the error numbers.
#include "base/errors.h"

#include <array>
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
