// The printer's calls in place.
#include "forms/printer.h"

#include <utility>

#include "base/errors.h"
#include "base/state.h"

bool PrinterAvailable = false;

namespace {
PrinterCalls NoPrinter() {
    return {[] { return std::vector<std::string>(); }, [](const std::string&) { throw Error(PrinterFault); },
            [] { throw Error(PrinterFault); },
            [](const std::string&) -> std::unique_ptr<Canvas> { throw Error(PrinterFault); }};
}

PrinterCalls Current = NoPrinter();
const ClearedAtStart ClearPrinter([] { PrinterAvailable = false; });
}  // namespace

const PrinterCalls& Printer() { return Current; }
PrinterCalls SetPrinter(PrinterCalls calls) {
    return std::exchange(Current, calls.begin ? std::move(calls) : NoPrinter());
}

void CheckPrinter() {
    PrinterAvailable = true;
    try {
        Printer().check();
    } catch (const Error&) {
        PrinterAvailable = false;
    }
}
