// The list of clears.
#include "base/state.h"

#include <vector>

namespace {
std::vector<void (*)()>& Clears() {
    static std::vector<void (*)()> clears;  // made on first use: entries are made before main begins
    return clears;
}
}  // namespace

ClearedAtStart::ClearedAtStart(void (*clear)()) { Clears().push_back(clear); }

void ClearAllState() {
    for (auto* clear : Clears()) clear();
}
