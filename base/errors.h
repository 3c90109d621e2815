// The error that procedures throw: a number and a description, as the reports show them.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

enum ErrorNumber : int {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceIoError = 57,
    DiskFull = 61,
    InputPastEnd = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    PrinterFault = 482,
};

/// The usual description of an error number; "Application-defined or object-defined error" for an unknown one.
std::string DescriptionOf(int number);

/// The error number for a failure of the system: 53, 61, 70, 75 or 76, and 57 for all that has no number of its own.
int NumberOf(const std::error_code& failure);

/// A failure with its number. what() is the description.
class Error : public std::runtime_error {
  public:
    explicit Error(int number) : Error(number, DescriptionOf(number)) {}
    Error(int number, const std::string& description) : std::runtime_error(description), number_(number) {}
    int number() const { return number_; }

  private:
    int number_;
};
