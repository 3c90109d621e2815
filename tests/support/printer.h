// A printer whose documents are recorded.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/printer.h"
#include "forms/recorder.h"

/// While one lives, documents are printed into calls(). PrinterAvailable is set by CheckPrinter, as at start-up.
class RecordedPrinter {
  public:
    RecordedPrinter() {
        before_ = SetPrinter({[] { return std::vector<std::string>{"P"}; }, [](const std::string&) {}, [] {},
                              [this](const std::string&) { return std::make_unique<Document>(calls_); }});
    }
    RecordedPrinter(const RecordedPrinter&) = delete;
    RecordedPrinter& operator=(const RecordedPrinter&) = delete;
    ~RecordedPrinter() { SetPrinter(before_); }

    /// The calls of the last document, one a line, as Recorder writes them.
    const std::vector<std::string>& calls() const { return calls_; }
    /// How many of them contain the phrase.
    std::size_t count(std::string_view phrase) const {
        std::size_t found = 0;
        for (const auto& call : calls_)
            if (call.find(phrase) != std::string::npos) ++found;
        return found;
    }
    void clear() { calls_.clear(); }

  private:
    /// The calls outlive the document.
    class Document : public Recorder {
      public:
        explicit Document(std::vector<std::string>& kept) : Recorder(20), kept_(kept) { setScale(12240, 15840); }
        ~Document() override { kept_ = calls(); }

      private:
        std::vector<std::string>& kept_;
    };

    std::vector<std::string> calls_;
    PrinterCalls before_;
};
