// A note on paper.
#include "notes/modPrintNote.h"

#include <cmath>
#include <string_view>

namespace {
constexpr double Left = 540;  // twips
constexpr double Top = 720;
constexpr double LinePitch = 1.5;  // of a line's height

/// One line; tabs go to the same stops as in the editor.
void PrintLine(Canvas& canvas, double y, std::string_view line) {
    double x = Left;
    for (;;) {
        const auto tab = line.find('\t');
        const std::string_view piece = line.substr(0, tab);
        if (!piece.empty()) canvas.text(x, y, piece, NoteFont, Black);
        if (tab == std::string_view::npos) return;
        x += canvas.textWidth(piece, NoteFont);
        x = Left + (std::floor((x - Left) / NoteTabDistance) + 1) * NoteTabDistance;
        line.remove_prefix(tab + 1);
    }
}
}  // namespace

void PrintNote(Canvas& canvas, Date date, const std::vector<std::string>& lines) {
    const double height = canvas.textHeight(NoteFont);
    const double bottom = canvas.scaleHeight() - Top;
    PrintLine(canvas, Top, "Notes for " + FormatDate(date, "mmm dd, yyyy"));
    double y = Top + 2 * height;
    for (const auto& line : lines) {
        if (y + height > bottom) {
            canvas.newPage();
            y = Top;
        }
        PrintLine(canvas, y, line);
        y += LinePitch * height;
    }
    canvas.end();
}
