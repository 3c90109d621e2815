// Error reporting: one box and one log for all that fails.
#pragma once

#include <string>
#include <string_view>

#include "base/errors.h"
#include "base/text.h"

/// Shows the report in a box titled "Program Error" and appends it to "Error.log".
void ReportError(const std::string& procedureName, int errorNumber, const std::string& errorDescription);

/// Appends one report to "Error.log" in the data folder. A failure, or a log of 32,767 bytes or more, shows
/// "Error writing to Error.log." and adds nothing.
void WriteErrorLog(const std::string& text);

/// Runs a procedure's body; what it throws is reported under the procedure's name. True if nothing was thrown.
template <class Body>
bool Reporting(const char* procedureName, Body&& body) {
    try {
        body();
        return true;
    } catch (const Error& error) {
        ReportError(procedureName, error.number(), error.what());
    } catch (const std::exception& failure) {
        ReportError(procedureName, DeviceIoError, TextOfUtf8(failure.what()));
    }
    return false;
}
