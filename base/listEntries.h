// List entries that stand for records: the visible text, tabs, the character 224 and the record's index.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// `tabs` of them (at least 1) push the index out of sight.
std::string RecordEntry(std::string_view text, int index, int tabs = 5);

/// The index at the end of an entry; nothing for an entry that carries none.
std::optional<int> RecordIndex(std::string_view entry);

/// What of an entry is to be seen: all before its tabs.
std::string_view VisibleText(std::string_view entry);
