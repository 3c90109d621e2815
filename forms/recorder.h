// A canvas that writes what is drawn as short lines of text, with fixed metrics: every character is half as wide as the
// font is high.
#pragma once

#include <vector>

#include "forms/canvas.h"

class Recorder : public Canvas {
  public:
    /// `unitsPerPoint`: how many user units one point is high.
    explicit Recorder(double unitsPerPoint = 0.02) : unitsPerPoint_(unitsPerPoint) {}

    void setScale(double width, double height) override;
    double scaleWidth() const override { return width_; }
    double scaleHeight() const override { return height_; }
    void clear() override;  ///< forgets all that was recorded
    void line(double x1, double y1, double x2, double y2, Color color) override;
    void box(double x1, double y1, double x2, double y2, Color color) override;
    void fillBox(double x1, double y1, double x2, double y2, Color color) override;
    void text(double x, double y, std::string_view text, const Font& font, Color color) override;
    double textWidth(std::string_view text, const Font& font) override;
    double textHeight(const Font& font) override { return font.points * unitsPerPoint_; }
    void picture(double x, double y, double width, double height, const Path& file) override;
    void newPage() override;
    void end() override;

    /// One line a call: "text 0.44 1.05 '7' MS Sans Serif 18 bold 000000", "fill 0.1 0.85 0.9 1.65 0000FF" (colour as
    /// BBGGRR), numbers with at most three decimals.
    const std::vector<std::string>& calls() const { return calls_; }
    /// True if a call's line is there.
    bool has(std::string_view call) const;
    /// All lines that contain the phrase.
    std::vector<std::string> containing(std::string_view phrase) const;

  private:
    double unitsPerPoint_;
    double width_ = 1;
    double height_ = 1;
    std::vector<std::string> calls_;
};
