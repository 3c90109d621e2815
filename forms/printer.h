// The printer as the modules ask for it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/canvas.h"

/// A document on its way to paper: a canvas in twips (1440 to the inch), measured from the paper's top left corner,
/// with the page's own size as its scale until setScale is called.
struct PrinterCalls {
    /// The device names of the installed printers.
    std::function<std::vector<std::string>()> names;
    /// Makes the printer of that name the current one. Throws Error 482 if it cannot be used.
    std::function<void(const std::string& name)> select;
    /// Throws Error 482 if there is no usable printer.
    std::function<void()> check;
    /// Begins a document. Throws Error 482 if the printer cannot be used.
    std::function<std::unique_ptr<Canvas>(const std::string& title)> begin;
};

/// The calls in place. Without any, there is no printer.
const PrinterCalls& Printer();
PrinterCalls SetPrinter(PrinterCalls calls);

/// True if a document can be printed; set at start-up by CheckPrinter.
extern bool PrinterAvailable;
/// Sets PrinterAvailable from the current printer. Reports nothing.
void CheckPrinter();
