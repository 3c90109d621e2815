// The recording canvas.
#include "forms/recorder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "base/modNoCase.h"

namespace {
std::string Number(double value) {
    std::array<char, 400> digits{};
    // Not printf: it would write the decimal point of the machine's locale.
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 3).ptr;
    std::string text(digits.data(), end);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string Numbers(std::initializer_list<double> values) {
    std::string text;
    for (const double value : values) text += " " + Number(value);
    return text;
}

std::string Hex(Color color) {
    char digits[16];
    std::snprintf(digits, sizeof digits, " %06X", static_cast<unsigned>(color));
    return digits;
}
}  // namespace

void Recorder::setScale(double width, double height) {
    width_ = width;
    height_ = height;
}

void Recorder::clear() { calls_.clear(); }

void Recorder::line(double x1, double y1, double x2, double y2, Color color) {
    calls_.push_back("line" + Numbers({x1, y1, x2, y2}) + Hex(color));
}

void Recorder::box(double x1, double y1, double x2, double y2, Color color) {
    calls_.push_back("box" + Numbers({x1, y1, x2, y2}) + Hex(color));
}

void Recorder::fillBox(double x1, double y1, double x2, double y2, Color color) {
    calls_.push_back("fill" + Numbers({x1, y1, x2, y2}) + Hex(color));
}

void Recorder::text(double x, double y, std::string_view text, const Font& font, Color color) {
    calls_.push_back("text" + Numbers({x, y}) + " '" + std::string(text) + "' " + font.family + " " +
                     Number(font.points) + (font.bold ? " bold" : "") + (font.underlined ? " underlined" : "") +
                     Hex(color));
}

double Recorder::textWidth(std::string_view text, const Font& font) {
    return static_cast<double>(text.size()) * font.points * unitsPerPoint_ / 2;
}

void Recorder::picture(double x, double y, double width, double height, const Path& file) {
    calls_.push_back("picture" + Numbers({x, y, width, height}) + " " + TextOfPath(file.filename()));
}

void Recorder::newPage() { calls_.emplace_back("page"); }
void Recorder::end() { calls_.emplace_back("end"); }

bool Recorder::has(std::string_view call) const {
    return std::find(calls_.begin(), calls_.end(), call) != calls_.end();
}

std::vector<std::string> Recorder::containing(std::string_view phrase) const {
    std::vector<std::string> found;
    for (const auto& call : calls_)
        if (call.find(phrase) != std::string::npos) found.push_back(call);
    return found;
}
