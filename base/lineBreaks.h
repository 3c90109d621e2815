// Texts of several lines that a file keeps in one.
#pragma once

#include <string>
#include <string_view>

/// A text with one of the two characters that stand for line breaks in the files (codes 210 and 213) cannot come back
/// as it was: asks whether to save it all the same. `what` names it: "note". True for a text without them.
bool MayTurnIntoLineBreaks(std::string_view text, const std::string& what);
