// A note on paper.
#pragma once

#include <string>
#include <vector>

#include "base/dates.h"
#include "forms/canvas.h"

/// The face of the notes editor, on the screen and on paper.
inline const Font NoteFont{"Arial", 10};
/// Between two tab stops, in twips.
inline constexpr double NoteTabDistance = 720;

/// Prints "Notes for Oct 05, 2008" and the lines as the editor wrapped them, on as many pages as they take. The canvas
/// is a document in twips. Throws Error 482 if the printer fails.
void PrintNote(Canvas& canvas, Date date, const std::vector<std::string>& lines);
