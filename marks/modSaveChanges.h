// The save-changes prompt: what is unsaved is asked about before the month, the view or the program changes.
#pragma once

#include <functional>

/// True after Cancel was answered; the caller clears it and abandons what it was about to do.
extern bool SaveCancelled;

/// Asks about unsaved icons, then about an open changed note. Cancel at the first leaves the second unasked.
/// `programEnds`: what is saved need not be read again.
void AskToSaveChanges(bool programEnds = false);

/// Asks, and clears the flag: true to go on, false if Cancel was answered.
bool MayGoOn(bool programEnds = false);

/// The questions. Each sets SaveCancelled for Cancel. Filled by the icons and by the notes.
extern std::function<void(bool programEnds)> AskAboutIcons;
extern std::function<void(bool programEnds)> AskAboutNotes;
