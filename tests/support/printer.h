// A printer whose documents are recorded.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/printer.h"
#include "forms/recorder.h"

/// While one lives, what is printed is recorded. PrinterAvailable is set by CheckPrinter, as at start-up.
class RecordedPrinter {
  public:
    RecordedPrinter() {
        before_ = SetPrinter({[] { return std::vector<std::string>{"P"}; }, [](const std::string&) {}, [] {},
                              [this](const std::string& name) {
                                  title = name;
                                  return std::make_unique<Document>(*this);
                              }});
    }
    RecordedPrinter(const RecordedPrinter&) = delete;
    RecordedPrinter& operator=(const RecordedPrinter&) = delete;
    ~RecordedPrinter() { SetPrinter(before_); }

    /// How many calls of the last document contain the phrase.
    std::size_t count(std::string_view phrase) const { return page ? page->containing(phrase).size() : 0; }

    std::optional<Recorder> page;  ///< the document ended last
    std::string title;             ///< of the document begun last
    double unitsPerPoint = 20;     ///< of the documents to come; 20 for twips

  private:
    /// Its canvas goes when a document is printed; what it recorded stays.
    struct Document : Recorder {
        explicit Document(RecordedPrinter& printer) : Recorder(printer.unitsPerPoint), printer_(printer) {
            setScale(12240, 15840);
        }
        void end() override { Recorder::end(), printer_.page = *this; }
        RecordedPrinter& printer_;
    };

    PrinterCalls before_;
};
