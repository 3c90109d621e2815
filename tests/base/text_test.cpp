// Text as the files hold it: the code page, letter case, list order, pieces and numbers.
#include "base/text.h"

#include "tests/support/planner.h"

namespace {
std::string AllBytes() {
    std::string all;
    for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
    return all;
}
}  // namespace

TEST(Text, EveryByteSurvivesTheWayOutAndBack) {
    const std::string utf8 = Utf8Of(AllBytes());
    EXPECT_EQ(TextOfUtf8(utf8), AllBytes());
    for (int code = 0; code < 256; ++code)
        EXPECT_EQ(CodeOf(CodePageTable()[static_cast<std::size_t>(code)]), code) << code;
    EXPECT_EQ(Utf8Of("\x80\x85\x99\x9F\xD2\xE0"), "€…™ŸÒà");
}

TEST(Text, WhatIsNoTextOfTheCodePageBecomesQuestionMarks) {
    const std::pair<const char*, const char*> rows[] = {
        {"Ж1", "?1"},
        {"\xF0\x9F\x99\x82.", "?."},        // beyond 16 bits
        {"\xC2\x80", "?"},                  // U+0080 has no code
        {"x\xFFy", "x?y"},                  // no UTF-8 at all
        {"\xE2\x82", "??"},                 // cut off
        {"\xC0\xAF", "??"},                 // "/" in two bytes
        {"\xE0\x80\xAF", "???"},            // "/" in three
        {"\xF8\x80\x80\x80\x80", "?????"},  // a length that does not exist
        {"\xC3(", "?("}};
    for (const auto& [utf8, text] : rows) EXPECT_EQ(TextOfUtf8(utf8), text) << text;
    EXPECT_EQ(CodeOf(0x100), -1);
}

TEST(Text, CaseMappingPairsTheLettersThatHaveTwoForms) {
    const std::string small = "abz\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF";
    const std::string capital = "ABZ\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F";
    EXPECT_EQ(UpperCase(small), capital);
    EXPECT_EQ(LowerCase(capital), small);
    const std::string alone = "19@[`{\xD7\xF7\xDF\x83\xB5\xAA";  // have one form only
    EXPECT_EQ(UpperCase(alone), alone);
    EXPECT_EQ(LowerCase(alone), alone);
    for (const char c : AllBytes()) {
        EXPECT_EQ(UpperCase(LowerCase(c)), UpperCase(c)) << int(c);
        EXPECT_EQ(LowerCase(UpperCase(c)), LowerCase(c)) << int(c);
    }
    EXPECT_EQ(ProperCase("mARY o'neil-sMITH 2nd \xE9ric"), "Mary O'neil-Smith 2nd \xC9ric");
}

TEST(Text, IsFoundIgnoringCase) {
    using Row = std::tuple<const char*, const char*, std::size_t, std::size_t>;
    for (const auto& [text, phrase, from, at] :
         {Row{"A Dentist", "DENT", 0, 2}, Row{"xXxy", "xy", 0, 2}, Row{"dDdD", "dd", 1, 1},
          Row{"abc", "abcd", 0, std::string::npos}, Row{"abc", "", 3, 3}, Row{"abc", "", 4, std::string::npos},
          Row{"\xC9t\xE9", "\xC9", 1, 2}, Row{"12-12", "12", 1, 3}, Row{"aab", "ab", 0, 1}, Row{"abc", "c", 2, 2},
          Row{"abc", "a", 1, std::string::npos}, Row{"aaXaaaab", "AAAB", 0, 4}, Row{"abcabcab", "cab", 3, 5},
          Row{"The \xC4rger, the \xE4rger", "\xE4RGER", 5, 15}, Row{"a calendar viewer", "Calendar View", 2, 2}})
        EXPECT_EQ(FindIgnoringCase(text, phrase, from), at) << text;
    for (std::size_t at = 0; at < 300; ++at) {
        const std::string text = std::string(at, 'e') + "Tea" + std::string(299 - at, 'T');
        EXPECT_EQ(FindIgnoringCase(text, "TEA"), at);
        EXPECT_EQ(FindIgnoringCase(text, "TEA", at + 1), std::string::npos);
    }
    EXPECT_TRUE(EqualIgnoringCase("M\xDCLLER", "m\xFCller") && !EqualIgnoringCase("a", "ab"));
}

TEST(Text, ListOrderIsLettersThenAccentsThenCodes) {
    const auto ordered = Pieces(
        "| a|-|\x80|1|10|2|A|a|AB|ab|\xC4"
        "b|aC|\xC6"
        "a|B|co-op|coat|coop|\xC9|\xE9|Eb|z|\x9E|zz");
    for (std::size_t i = 0; i < ordered.size(); ++i)
        for (std::size_t j = 0; j < ordered.size(); ++j) {
            const int order = CompareInListOrder(ordered[i], ordered[j]);
            EXPECT_EQ(order < 0, i < j) << i << " \"" << ordered[i] << "\" and " << j << " \"" << ordered[j] << '"';
            EXPECT_EQ(order == 0, i == j);
        }
    std::vector<std::string> list;
    for (auto entry = ordered.rbegin(); entry != ordered.rend(); ++entry)
        EXPECT_EQ(InsertInListOrder(list, *entry), 0u);
    EXPECT_EQ(list, ordered);
    EXPECT_EQ(InsertInListOrder(list, "aB"), 10u);  // between "AB" and "ab"
}

TEST(Text, PiecesStayWithinTheText) {
    for (const auto& [first, length, piece] :
         {std::tuple{1u, 2u, "ab"}, std::tuple{6u, 9u, "f"}, std::tuple{7u, 1u, ""}, std::tuple{99u, 1u, ""}})
        EXPECT_EQ(Middle("abcdef", first, length), piece) << first;
    EXPECT_EQ(ErrorOf([] { Middle("abc", 0); }), InvalidCall);
    EXPECT_TRUE(Trimmed("  a\t ") == "a\t" && Trimmed("   ").empty());
    EXPECT_EQ(Replaced("aXXbX", "X", "yX"), "ayXyXbyX");
    EXPECT_EQ(Replaced("abc", "", "x"), "abc");
    EXPECT_EQ(EncodedLineBreaks("x\r\ny"), "x\xD5\xD2y");
    EXPECT_EQ(DecodedLineBreaks("x\xD5\xD2y"), "x\r\ny");
}

TEST(Text, NumbersAreReadWholeOrRefused) {
    using Row = std::tuple<const char*, std::int64_t, int>;
    for (const auto& [text, value, error] :
         {Row{"7", 7, 0}, Row{" +7 ", 7, 0}, Row{"007", 7, 0}, Row{"-32768", -32768, 0}, Row{"32767", 32767, 0},
          Row{"32768", 0, Overflow}, Row{"-32769", 0, Overflow}, Row{"99999999999999999999", 0, Overflow},
          Row{"", 0, TypeMismatch}, Row{" ", 0, TypeMismatch}, Row{"-", 0, TypeMismatch}, Row{"+-7", 0, TypeMismatch},
          Row{"7a", 0, TypeMismatch}, Row{"1 2", 0, TypeMismatch}, Row{"1.5", 0, TypeMismatch}}) {
        std::int64_t read = 0;
        EXPECT_EQ(ErrorOf([&read, text = text] { read = SmallIntegerValue(text); }), error) << text;
        EXPECT_EQ(read, value) << text;
    }
    EXPECT_EQ(Padded(-7, 2), "-07");
    EXPECT_EQ(Padded(INT64_MIN, 2), "-9223372036854775808");
    EXPECT_EQ(WithThousands(-1000000), "-1,000,000");
    EXPECT_EQ(WithThousands(999), "999");
}
