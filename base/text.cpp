// Windows-1252: its table, letter case, list order; and the small pieces of text handling the files need.
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <utility>

#include "base/errors.h"

// -- The code page ------------------------------------------------------------------------------------------------

const std::array<char16_t, 256>& CodePageTable() {
    static const auto table = [] {
        constexpr std::array<char16_t, 32> Upper{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
        std::array<char16_t, 256> all{};
        for (std::size_t code = 0; code < 256; ++code) all[code] = static_cast<char16_t>(code);
        std::copy(Upper.begin(), Upper.end(), all.begin() + 0x80);
        return all;
    }();
    return table;
}

int CodeOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<int>(character);
    const auto& table = CodePageTable();
    for (int code = 0x80; code < 0xA0; ++code)
        if (table[static_cast<std::size_t>(code)] == character) return code;
    return -1;
}

std::string Utf8Of(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char byte : text) {
        const unsigned c = CodePageTable()[static_cast<unsigned char>(byte)];
        if (c < 0x80) {
            utf8 += static_cast<char>(c);
        } else if (c < 0x800) {
            utf8 += static_cast<char>(0xC0 | (c >> 6));
            utf8 += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | (c >> 12));
            utf8 += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            utf8 += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return utf8;
}

namespace {
constexpr char32_t NoCharacter = 0xFFFFFFFF;

/// The length that a first byte announces, 0 for a byte that begins no character.
std::size_t LengthOfUtf8(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

/// The character that these bytes are as a whole; NoCharacter for bytes that are none.
char32_t CharacterOfUtf8(std::string_view bytes) {
    static constexpr std::array<char32_t, 5> Smallest{0, 0, 0x80, 0x800, 0x10000};
    char32_t character = static_cast<unsigned char>(bytes.front());
    if (bytes.size() > 1) character &= 0x7Fu >> bytes.size();
    for (const char byte : bytes.substr(1)) {
        const auto next = static_cast<unsigned char>(byte);
        if ((next & 0xC0) != 0x80) return NoCharacter;
        character = (character << 6) | (next & 0x3F);
    }
    return character < Smallest.at(bytes.size()) ? NoCharacter : character;
}

/// Takes one character off the front of UTF-8; of what is none, one byte.
char32_t TakeCharacter(std::string_view& utf8) {
    const std::size_t length = LengthOfUtf8(static_cast<unsigned char>(utf8.front()));
    const bool whole = length != 0 && length <= utf8.size();
    const char32_t character = whole ? CharacterOfUtf8(utf8.substr(0, length)) : NoCharacter;
    utf8.remove_prefix(character == NoCharacter ? 1 : length);
    return character;
}
}  // namespace

std::string TextOfUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const int code = CodeOf(TakeCharacter(utf8));
        text += code < 0 ? '?' : static_cast<char>(code);
    }
    return text;
}

std::string MisfitMessage(std::string_view misfitsUtf8) {
    return "This text cannot be saved: the files of Tasmoro cannot hold the characters " + std::string(misfitsUtf8) +
           "\r\nPlease replace or remove them. Nothing has been saved yet, and your text is still here.";
}

// -- Letters ------------------------------------------------------------------------------------------------------

namespace {
using CodeTable = std::array<unsigned char, 256>;

CodeTable MakeUpperTable() {
    CodeTable table{};
    for (std::size_t c = 0; c < 256; ++c) table[c] = static_cast<unsigned char>(c);
    for (std::size_t c = 'a'; c <= 'z'; ++c) table[c] = static_cast<unsigned char>(c - 0x20);
    for (std::size_t c = 0xE0; c <= 0xFE; ++c)
        if (c != 0xF7) table[c] = static_cast<unsigned char>(c - 0x20);
    table[0x9A] = 0x8A;
    table[0x9C] = 0x8C;
    table[0x9E] = 0x8E;
    table[0xFF] = 0x9F;
    return table;
}

const CodeTable& UpperTable() {
    static const CodeTable table = MakeUpperTable();
    return table;
}

const CodeTable& LowerTable() {
    static const CodeTable table = [] {
        CodeTable lower{};
        for (std::size_t c = 0; c < 256; ++c) lower[c] = static_cast<unsigned char>(c);
        for (std::size_t c = 0; c < 256; ++c)
            if (UpperTable()[c] != c) lower[UpperTable()[c]] = static_cast<unsigned char>(c);
        return lower;
    }();
    return table;
}

unsigned char Upper(char c) { return UpperTable()[static_cast<unsigned char>(c)]; }

template <class Convert>
std::string Converted(std::string_view text, Convert convert) {
    std::string result(text);
    for (char& c : result) c = convert(c);
    return result;
}

/// The unaccented capital letters of a code ("AE" for the ligature), "" for what is no letter.
std::string_view BaseLetters(char c) {
    static constexpr std::string_view Latin[] = {"A", "A", "A", "A", "A", "A", "AE", "C", "E",  "E", "E",
                                                 "E", "I", "I", "I", "I", "D", "N",  "O", "O",  "O", "O",
                                                 "O", "",  "O", "U", "U", "U", "U",  "Y", "TH", "SS"};
    static constexpr std::string_view Plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const unsigned char upper = Upper(c);
    if (upper >= 'A' && upper <= 'Z') return Plain.substr(upper - 'A', 1);
    if (upper >= 0xC0 && upper <= 0xDF) return Latin[upper - 0xC0];
    switch (upper) {
        case 0x8A:
            return "S";
        case 0x8C:
            return "OE";
        case 0x8E:
            return "Z";
        case 0x9F:
            return "Y";
        case 0x83:
            return "F";
        case 0xAA:
            return "A";
        case 0xBA:
            return "O";
        default:
            return "";
    }
}

/// Walks a text as the sequence of units that list order compares first: base letters, other characters as they are.
class PrimaryWalk {
  public:
    explicit PrimaryWalk(std::string_view text) : text_(text) {}

    /// The next unit, -1 at the end. Punctuation sorts before digits, digits before letters.
    int next() {
        if (!pending_.empty()) return take();
        if (at_ == text_.size()) return -1;
        const char c = text_[at_++];
        pending_ = BaseLetters(c);
        if (!pending_.empty()) return take();
        const int code = static_cast<unsigned char>(c);
        return code >= '0' && code <= '9' ? 0x100 + code : code;
    }

  private:
    int take() {
        const int unit = 0x200 + pending_.front();
        pending_.remove_prefix(1);
        return unit;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::string_view pending_;
};

int ComparePrimary(std::string_view a, std::string_view b) {
    PrimaryWalk walkA(a);
    PrimaryWalk walkB(b);
    for (;;) {
        const int unitA = walkA.next();
        const int unitB = walkB.next();
        if (unitA != unitB) return unitA < unitB ? -1 : 1;
        if (unitA == -1) return 0;
    }
}

int CompareUpper(std::string_view a, std::string_view b) {
    const auto length = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < length; ++i)
        if (const int difference = Upper(a[i]) - Upper(b[i]); difference != 0) return difference;
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}
}  // namespace

char UpperCase(char c) { return static_cast<char>(Upper(c)); }
char LowerCase(char c) { return static_cast<char>(LowerTable()[static_cast<unsigned char>(c)]); }
std::string UpperCase(std::string_view text) {
    return Converted(text, [](char c) { return UpperCase(c); });
}
std::string LowerCase(std::string_view text) {
    return Converted(text, [](char c) { return LowerCase(c); });
}

bool IsLetter(char c) { return !BaseLetters(c).empty(); }

std::string ProperCase(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool inWord = false;
    for (const char c : text) {
        result += inWord ? LowerCase(c) : UpperCase(c);
        inWord = IsLetter(c) || c == '\'' || (c >= '0' && c <= '9');
    }
    return result;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && StartsWithIgnoringCase(a, b);
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(), [](char a, char b) { return Upper(a) == Upper(b); });
}

PhraseFinder::PhraseFinder(std::string codes, std::string otherCodes)
    : codes_(std::move(codes)), otherCodes_(std::move(otherCodes)) {
    constexpr std::string_view Common = " etaoinsrhldcumfpgwybvk";  // the most frequent first; all others are rarer
    std::vector<std::size_t> places(codes_.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(),
                     [&](auto a, auto b) { return Common.find(codes_[a]) > Common.find(codes_[b]); });
    for (std::size_t i = 0; i < rarest_.size() && !places.empty(); ++i)
        rarest_[i] = places[std::min(i, places.size() - 1)];
}

bool PhraseFinder::isAt(const char* place) const {
    for (std::size_t i = 0; i < codes_.size(); ++i)
        if (place[i] != codes_[i] && place[i] != otherCodes_[i]) return false;
    return true;
}

namespace {
/// Neighbouring places of a text. Loops over them are turned into wide instructions, if nothing else can be meant: they
/// work on copies.
using Block = std::array<char, 128>;

/// Clears the marks where the letter is neither of the two.
void KeepMet(Block& marks, const char* letters, char code, char otherCode) {
    Block block;
    std::copy_n(letters, block.size(), block.begin());
    for (std::size_t i = 0; i < block.size(); ++i)
        marks[i] &= static_cast<char>((block[i] == code) | (block[i] == otherCode));
}

bool AnyOf(const Block& marks) {
    char any = 0;
    for (const char mark : marks) any |= mark;
    return any != 0;
}
}  // namespace

// The rarest letters of the phrase are compared for a block of places at once, the whole phrase only where all of them
// are met.
std::size_t PhraseFinder::find(std::string_view text, std::size_t from) const {
    if (from > text.size() || codes_.size() > text.size() - from) return std::string_view::npos;
    if (codes_.empty()) return from;
    const std::size_t end = text.size() - codes_.size() + 1;
    Block marks;
    for (; end - from >= marks.size(); from += marks.size()) {
        marks.fill(1);
        for (const std::size_t place : rarest_)
            KeepMet(marks, text.data() + from + place, codes_[place], otherCodes_[place]);
        if (!AnyOf(marks)) continue;
        for (std::size_t i = 0; i < marks.size(); ++i)
            if (marks[i] != 0 && isAt(text.data() + from + i)) return from + i;
    }
    for (; from < end; ++from)
        if (isAt(text.data() + from)) return from;
    return std::string_view::npos;
}

std::size_t FindIgnoringCase(std::string_view text, std::string_view phrase, std::size_t from) {
    return PhraseFinder(phrase).find(text, from);
}

int CompareInListOrder(std::string_view a, std::string_view b) {
    if (const int order = ComparePrimary(a, b); order != 0) return order;
    if (const int order = CompareUpper(a, b); order != 0) return order;
    return a.compare(b);
}

std::size_t InsertInListOrder(std::vector<std::string>& list, std::string entry) {
    const auto place = std::upper_bound(list.begin(), list.end(), entry, InListOrder());
    const auto index = place - list.begin();
    list.insert(place, std::move(entry));
    return static_cast<std::size_t>(index);
}

// -- Pieces -------------------------------------------------------------------------------------------------------

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view Middle(std::string_view text, std::size_t first, std::size_t length) {
    if (first == 0) throw Error(InvalidCall);
    return first > text.size() ? std::string_view() : text.substr(first - 1, length);
}

std::string EncodedLineBreaks(std::string_view text) {
    return Converted(text, [](char c) { return c == '\r' ? '\xD5' : c == '\n' ? '\xD2' : c; });
}

std::string DecodedLineBreaks(std::string_view text) {
    return Converted(text, [](char c) { return c == '\xD5' ? '\r' : c == '\xD2' ? '\n' : c; });
}

std::string Replaced(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string result;
    std::size_t done = 0;
    for (auto at = text.find(what); at != std::string_view::npos; at = text.find(what, done)) {
        result.append(text, done, at - done).append(with);
        done = at + what.size();
    }
    return result.append(text, done);
}

// -- Numbers ------------------------------------------------------------------------------------------------------

std::string Padded(std::int64_t number, int width) {
    std::string digits = std::to_string(number);
    if (number < 0) digits.erase(0, 1);
    if (digits.size() < static_cast<std::size_t>(width))
        digits.insert(0, static_cast<std::size_t>(width) - digits.size(), '0');
    return number < 0 ? "-" + digits : digits;
}

std::int64_t IntegerValue(std::string_view text, std::int64_t lowest, std::int64_t highest) {
    std::string_view digits = Trimmed(text);
    if (digits.starts_with('+') && digits.size() > 1 && digits[1] != '-') digits.remove_prefix(1);
    std::int64_t value = 0;
    const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (failure == std::errc::result_out_of_range) throw Error(Overflow);
    if (failure != std::errc() || end != digits.data() + digits.size()) throw Error(TypeMismatch);
    if (value < lowest || value > highest) throw Error(Overflow);
    return value;
}

std::string WithThousands(std::int64_t number) {
    std::string digits = std::to_string(number);
    const std::size_t sign = number < 0 ? 1 : 0;
    for (std::size_t at = digits.size(); at > sign + 3; at -= 3) digits.insert(at - 3, ",");
    return digits;
}
