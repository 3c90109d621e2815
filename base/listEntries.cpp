// List entries that stand for records.
#include "base/listEntries.h"

#include "base/errors.h"
#include "base/text.h"

namespace {
constexpr std::string_view Mark = "\t\t\t\t\t\xE0";
}

std::string RecordEntry(std::string_view text, int index) {
    return std::string(text).append(Mark).append(std::to_string(index));
}

std::optional<int> RecordIndex(std::string_view entry) {
    const auto at = entry.rfind(Mark);
    if (at == std::string_view::npos) return std::nullopt;
    return static_cast<int>(IntegerValue(entry.substr(at + Mark.size())));
}

std::string_view VisibleText(std::string_view entry) { return entry.substr(0, entry.rfind(Mark)); }
