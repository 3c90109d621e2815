// The save-changes prompt.
#include "marks/modSaveChanges.h"

#include <utility>

#include "base/state.h"

bool SaveCancelled = false;
std::function<void(bool)> AskAboutIcons;
std::function<void(bool)> AskAboutNotes;

namespace {
const ClearedAtStart ClearSaveChanges([] { SaveCancelled = false; });
}

void AskToSaveChanges(bool programEnds) {
    if (AskAboutIcons) AskAboutIcons(programEnds);
    if (!SaveCancelled && AskAboutNotes) AskAboutNotes(programEnds);
}

bool MayGoOn(bool programEnds) {
    AskToSaveChanges(programEnds);
    return !std::exchange(SaveCancelled, false);
}
