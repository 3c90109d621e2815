// What can be drawn on: the picture on the screen, the printed page, and a recorder for tests.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/files.h"

/// 0x00BBGGRR: red in the low byte. In the tables of marks 0 means no colour.
using Color = std::uint32_t;

inline constexpr Color Black = 0x000000;
inline constexpr Color White = 0xFFFFFF;
inline constexpr Color Silver = 0xC0C0C0;

/// A typeface by its name, its size in points and its style. "MS Sans Serif" and "Arial" are shown in a face with
/// Arial's metrics where they are not installed.
struct Font {
    std::string family;
    double points = 8;
    bool bold = false;
    bool underlined = false;
    bool operator==(const Font&) const = default;
};

/// A surface with a user scale: all positions and sizes are in its units, from the top left corner. Every call carries
/// its font and colour; the surface keeps none.
class Canvas {
  public:
    virtual ~Canvas() = default;

    /// Sets the units: the whole surface is `width` wide and `height` high.
    virtual void setScale(double width, double height) = 0;
    virtual double scaleWidth() const = 0;
    virtual double scaleHeight() const = 0;

    /// Empties the surface to white. On paper it does nothing.
    virtual void clear() = 0;
    virtual void line(double x1, double y1, double x2, double y2, Color color) = 0;
    /// The outline of a rectangle.
    virtual void box(double x1, double y1, double x2, double y2, Color color) = 0;
    virtual void fillBox(double x1, double y1, double x2, double y2, Color color) = 0;
    /// One line of text whose top left corner is at (x, y).
    virtual void text(double x, double y, std::string_view text, const Font& font, Color color) = 0;
    virtual double textWidth(std::string_view text, const Font& font) = 0;
    /// The height of a line of text.
    virtual double textHeight(const Font& font) = 0;
    /// The picture file scaled into the middle of the rectangle, in its own proportions. Throws Error 53 or 75 if it
    /// cannot be read.
    virtual void picture(double x, double y, double width, double height, const Path& file) = 0;
    /// On paper: the next page. On a screen it does nothing.
    virtual void newPage() = 0;
    /// On paper: sends the document. Throws Error 482 if the printer fails. On a screen it does nothing.
    virtual void end() = 0;
};

/// Text centred about x.
inline void CenteredText(Canvas& canvas, double x, double y, std::string_view text, const Font& font, Color color) {
    canvas.text(x - canvas.textWidth(text, font) / 2, y, text, font, color);
}
