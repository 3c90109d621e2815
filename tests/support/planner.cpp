// What most tests share.
#include "tests/support/planner.h"

std::vector<std::string> Pieces(std::string_view text) {
    std::vector<std::string> pieces(1);
    for (const char c : text)
        if (c == '|')
            pieces.emplace_back();
        else
            pieces.back() += c;
    return pieces;
}
