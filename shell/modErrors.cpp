// Error reporting: one box and one log for all that fails.
#include "shell/modErrors.h"

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/files.h"
#include "base/modNoCase.h"
#include "base/text.h"

namespace {
constexpr std::size_t LargestLog = 32766;  // positions in the log are 16-bit numbers counted from 1

void AppendToLog(const std::string& text) {
    const Path path = DataPath("Error.log");
    if (FileExists(DataFolder(), "Error.log") && std::filesystem::file_size(path) > LargestLog) throw Error(Overflow);
    AppendToFile(path, text);
}
}  // namespace

void ReportError(const std::string& procedureName, int errorNumber, const std::string& errorDescription) {
    const std::string text = GeneralDate(Now()) + CrLf + "An error occurred in " + procedureName + "." + CrLf +
                             "Error Number: " + std::to_string(errorNumber) + CrLf +
                             "Error Description: " + errorDescription + CrLf + CrLf;
    ShowMessage(text, "Program Error");
    WriteErrorLog(text);
}

void WriteErrorLog(const std::string& text) {
    try {
        AppendToLog(text);
    } catch (const std::exception&) {
        ShowMessage("Error writing to Error.log.");
    }
}
