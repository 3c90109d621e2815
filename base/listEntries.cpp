// List entries that stand for records.
#include "base/listEntries.h"

#include "base/errors.h"
#include "base/text.h"

namespace {
constexpr std::string_view Mark = "\t\xE0";  // the last of the tabs and the character
}

std::string RecordEntry(std::string_view text, int index, int tabs) {
    return std::string(text)
        .append(static_cast<std::size_t>(tabs - 1), '\t')
        .append(Mark)
        .append(std::to_string(index));
}

std::optional<int> RecordIndex(std::string_view entry) {
    const auto at = entry.rfind(Mark);
    if (at == std::string_view::npos) return std::nullopt;
    return static_cast<int>(IntegerValue(entry.substr(at + Mark.size())));
}

std::string_view VisibleText(std::string_view entry) {
    const auto at = entry.rfind(Mark);
    if (at == std::string_view::npos) return entry;
    return entry.substr(0, entry.find_last_not_of('\t', at) + 1);
}
