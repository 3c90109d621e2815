// The question about the characters that stand for line breaks.
#include "base/lineBreaks.h"

#include "base/dialogs.h"
#include "base/text.h"

bool MayTurnIntoLineBreaks(std::string_view text, const std::string& what) {
    if (text.find_first_of("\xD2\xD5") == std::string_view::npos) return true;
    return AskBeforeLoss(
        "This " + what + " holds the characters \xD2 or \xD5. In the file they stand for line breaks, and will " +
        "have turned into line breaks when the " + what + " is opened again." + CrLf + "Save it all the same?");
}
