// Text as the files hold it: Windows-1252, one byte a character, with its letter case, its list order and its numbers.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// -- The code page ------------------------------------------------------------------------------------------------

/// The Unicode character of each of the 256 codes. Codes that the code page leaves undefined (0x81, 0x8D, 0x8F, 0x90,
/// 0x9D) stand for the control characters of the same number, so that every byte survives the way out and back.
const std::array<char16_t, 256>& CodePageTable();

/// The code of a Unicode character, or -1 if the code page does not have it.
int CodeOf(char32_t character);

/// The text as UTF-8, for file names and for what leaves the program.
std::string Utf8Of(std::string_view text);

/// UTF-8 as text. Characters that the code page does not have, and bytes that are no UTF-8, become "?".
std::string TextOfUtf8(std::string_view utf8);

/// The message, in UTF-8, that refuses to save a text; `misfitsUtf8` lists the characters that do not fit.
std::string MisfitMessage(std::string_view misfitsUtf8);

// -- Letters ------------------------------------------------------------------------------------------------------

char UpperCase(char c);
char LowerCase(char c);
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
/// The first letter of each word capital, the others small. A word begins after a character that is no letter, digit
/// or apostrophe.
std::string ProperCase(std::string_view text);
bool IsLetter(char c);

bool EqualIgnoringCase(std::string_view a, std::string_view b);
bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix);

/// Looks for one phrase in many texts. Each character of the phrase is met by either of two codes: a letter by its
/// capital and its small form, any other by itself.
class PhraseFinder {
  public:
    explicit PhraseFinder(std::string_view phrase) : PhraseFinder(LowerCase(phrase), UpperCase(phrase)) {}
    /// The two codes of each character; both texts are equally long.
    PhraseFinder(std::string codes, std::string otherCodes);

    /// The position of the phrase in the text at or after `from`; npos if it is not there. The empty phrase is found at
    /// `from`.
    std::size_t find(std::string_view text, std::size_t from = 0) const;

  private:
    bool isAt(const char* place) const;

    std::string codes_, otherCodes_;
    std::array<std::size_t, 3> rarest_{};  // the places in the phrase that are looked at first
};

/// `PhraseFinder::find` for one text.
std::size_t FindIgnoringCase(std::string_view text, std::string_view phrase, std::size_t from = 0);

/// The order of sorted lists: letters without regard to case or accent first, then by accent, then by code.
/// Negative, zero or positive; zero only for identical texts.
int CompareInListOrder(std::string_view a, std::string_view b);

/// For sorted containers and std::sort.
struct InListOrder {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return CompareInListOrder(a, b) < 0; }
};

/// Puts the entry where list order wants it, after equal ones. Returns its index.
std::size_t InsertInListOrder(std::vector<std::string>& list, std::string entry);

// -- Pieces -------------------------------------------------------------------------------------------------------

/// Without the blanks at both ends (blanks only: tabs and line breaks stay).
std::string_view Trimmed(std::string_view text);

/// The characters from `first` (counted from 1), `length` of them or as many as there are; "" past the end. Throws
/// Error 5 for a `first` of 0.
std::string_view Middle(std::string_view text, std::size_t first, std::size_t length = std::string_view::npos);

/// A note or message as its one line in a file: carriage return and line feed become the codes 213 and 210.
std::string EncodedLineBreaks(std::string_view text);
std::string DecodedLineBreaks(std::string_view text);

/// Every `what` in the text replaced, from the left; the text as it stands where `what` is "".
std::string Replaced(std::string_view text, std::string_view what, std::string_view with);

// -- Numbers ------------------------------------------------------------------------------------------------------

/// The number in decimal with at least `width` digits, zero-padded; a minus sign comes on top.
std::string Padded(std::int64_t number, int width);
inline std::string TwoDigits(int number) { return Padded(number, 2); }

/// The whole number that the text is, blanks around it allowed. Throws Error 13 if it is none (empty text included),
/// 6 if it lies outside lowest..highest.
std::int64_t IntegerValue(std::string_view text, std::int64_t lowest = INT32_MIN, std::int64_t highest = INT32_MAX);

/// The same, limited to 16 bits (-32768..32767).
inline int SmallIntegerValue(std::string_view text) { return static_cast<int>(IntegerValue(text, -32768, 32767)); }

/// The number with "," between thousands: 31,999.
std::string WithThousands(std::int64_t number);

inline constexpr const char* CrLf = "\r\n";
