// The command that attaches a hover text to a marked day.
#pragma once

/// The command "Attach Mouse Over (Hover) Note": asks for the hover text of the selected day, saves and shows it. An
/// empty answer changes nothing. A day without a mark has no place for a text in the file: a message says so before
/// anything is typed.
void AttachHoverText();
