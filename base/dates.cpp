// Civil dates by arithmetic on day numbers, and their texts.
#include "base/dates.h"

#include <array>
#include <vector>

#include "base/clock.h"
#include "base/errors.h"
#include "base/text.h"

namespace {
constexpr int DaysToEpoch = 693899;  // from 1 March of the year 0 to 30 December 1899

constexpr std::array<const char*, 12> MonthNames{"January", "February", "March",     "April",   "May",      "June",
                                                 "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<const char*, 7> DayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                              "Thursday", "Friday", "Saturday"};

int FloorDivide(int value, int by) { return value >= 0 ? value / by : -((-value + by - 1) / by); }

/// Days from 1 March of the year 0. Years begin in March here, so that the leap day is a year's last.
int DaysFromMarch(int year, int month, int day) {
    const int y = month <= 2 ? year - 1 : year;
    const int m = (month + 9) % 12;
    return y * 365 + FloorDivide(y, 4) - FloorDivide(y, 100) + FloorDivide(y, 400) + (m * 153 + 2) / 5 + day - 1;
}
}  // namespace

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DaysInMonth(int year, int month) {
    constexpr std::array<int, 12> Days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : Days.at(static_cast<std::size_t>(month - 1));
}

bool IsDate(int year, int month, int day) {
    return year >= FirstYear && year <= LastYear && month >= 1 && month <= 12 && day >= 1 &&
           day <= DaysInMonth(year, month);
}

Date MakeDate(int year, int month, int day) {
    if (!IsDate(year, month, day)) throw Error(TypeMismatch);
    return {DaysFromMarch(year, month, day) - DaysToEpoch};
}

YearMonthDay PartsOf(Date date) {
    const int days = date.number + DaysToEpoch;
    const int era = FloorDivide(days, 146097);
    const int dayOfEra = days - era * 146097;
    const int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int m = (5 * dayOfYear + 2) / 153;
    const int month = m < 10 ? m + 3 : m - 9;
    return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month, dayOfYear - (153 * m + 2) / 5 + 1};
}

int WeekdayOf(Date date) {
    const int remainder = (date.number + 6) % 7;  // 30 December 1899 was a Saturday
    return (remainder < 0 ? remainder + 7 : remainder) + 1;
}

Date AddMonths(Date date, int months) {
    const YearMonthDay parts = PartsOf(date);
    const int count = parts.year * 12 + parts.month - 1 + months;
    const int year = FloorDivide(count, 12);
    const int month = count - year * 12 + 1;
    const int last = DaysInMonth(year, month);
    return MakeDate(year, month, parts.day < last ? parts.day : last);
}

std::string MonthName(int month) { return MonthNames.at(static_cast<std::size_t>(month - 1)); }
std::string WeekdayName(int weekday) { return DayNames.at(static_cast<std::size_t>(weekday - 1)); }

// -- Reading ------------------------------------------------------------------------------------------------------

namespace {
struct Word {
    bool number = false;
    int value = 0;   // of a number, or the month 1..12 of a name
    int digits = 0;  // of a number
};

/// 1..count for a name or its abbreviation of three letters or more, 0 for what is none.
template <std::size_t Count>
int NameIndex(std::string_view word, const std::array<const char*, Count>& names) {
    if (word.size() < 3) return 0;
    for (std::size_t i = 0; i < Count; ++i)
        if (StartsWithIgnoringCase(names[i], word)) return static_cast<int>(i) + 1;
    return 0;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::optional<Word> NumberWord(std::string_view digits) {
    if (digits.size() > 4) return std::nullopt;
    return Word{true, static_cast<int>(IntegerValue(digits)), static_cast<int>(digits.size())};
}

/// The run of characters of one kind at the front.
template <class Kind>
std::string_view Run(std::string_view text, Kind kind) {
    std::size_t length = 0;
    while (length < text.size() && kind(text[length])) ++length;
    return text.substr(0, length);
}

/// Splits into numbers and month names, parted by blanks and at most one sign; the weekday's name in front is dropped.
/// Nothing where something else stands.
std::optional<std::vector<Word>> WordsOf(std::string_view text) {
    std::vector<Word> words;
    bool signMayStand = false;  // after a word, until the first sign
    bool wordMustFollow = true;
    for (std::size_t length = 0; !text.empty(); text.remove_prefix(length)) {
        length = 1;
        if (const auto digits = Run(text, IsDigit); !digits.empty()) {
            const auto word = NumberWord(digits);
            if (!word) return std::nullopt;
            words.push_back(*word);
            length = digits.size();
        } else if (const auto name = Run(text, [](char c) { return IsLetter(c); }); !name.empty()) {
            if (const int month = NameIndex(name, MonthNames); month != 0)
                words.push_back({false, month, 0});
            else if (!words.empty() || NameIndex(name, DayNames) == 0)
                return std::nullopt;
            length = name.size();
            if (text.substr(length).starts_with('.')) ++length;  // an abbreviation's
        } else if (text.front() == ' ') {
            continue;
        } else {
            if (!signMayStand || std::string_view(",/-.").find(text.front()) == std::string_view::npos)
                return std::nullopt;
            signMayStand = false;
            wordMustFollow = true;
            continue;
        }
        signMayStand = true;
        wordMustFollow = false;
    }
    if (wordMustFollow) return std::nullopt;
    return words;
}

int FullYear(const Word& word) {
    if (word.digits > 2) return word.value;
    return word.value <= 29 ? 2000 + word.value : 1900 + word.value;
}

std::optional<Date> DateIfReal(int year, int month, int day) {
    if (!IsDate(year, month, day)) return std::nullopt;
    return MakeDate(year, month, day);
}

/// A month's name with a day, a year, or both around it.
std::optional<Date> DateWithName(const std::vector<Word>& words, std::size_t name) {
    const int month = words[name].value;
    if (words.size() == 2) {
        const Word& other = words[1 - name];
        if (other.digits == 4) return DateIfReal(other.value, month, 1);
        return DateIfReal(YearOf(Today()), month, other.value);
    }
    const Word& day = words[name == 0 ? 1 : 0];
    const Word& year = words[2];
    if (name == 1 && day.digits == 4) return DateIfReal(day.value, month, year.value);  // 2009 Jan 4
    return DateIfReal(FullYear(year), month, day.digits <= 2 ? day.value : 0);
}

std::optional<Date> DateOfNumbers(const std::vector<Word>& words) {
    if (words.size() == 2)
        return words[0].digits > 2 || words[1].digits > 2 ? std::nullopt
                                                          : DateIfReal(YearOf(Today()), words[0].value, words[1].value);
    if (words[0].digits == 4) return DateIfReal(words[0].value, words[1].value, words[2].value);
    if (words[0].digits > 2 || words[1].digits > 2) return std::nullopt;
    return DateIfReal(FullYear(words[2]), words[0].value, words[1].value);
}
}  // namespace

std::optional<Date> ReadDate(std::string_view text) {
    const auto words = WordsOf(text);
    if (!words || words->size() < 2 || words->size() > 3) return std::nullopt;
    std::size_t names = 0;
    std::size_t name = 0;
    for (std::size_t i = 0; i < words->size(); ++i)
        if (!(*words)[i].number) ++names, name = i;
    if (names == 0) return DateOfNumbers(*words);
    if (names > 1 || name > 1) return std::nullopt;
    return DateWithName(*words, name);
}

Date DateOfText(std::string_view text) {
    const auto date = ReadDate(text);
    if (!date) throw Error(TypeMismatch);
    return *date;
}

// -- Writing ------------------------------------------------------------------------------------------------------

namespace {
std::size_t RunLength(std::string_view pattern) {
    const auto other = pattern.find_first_not_of(pattern.front());
    return other == std::string_view::npos ? pattern.size() : other;
}

std::string DayField(Date date, int day, std::size_t run) {
    switch (run) {
        case 1:
            return std::to_string(day);
        case 2:
            return TwoDigits(day);
        case 3:
            return WeekdayName(WeekdayOf(date)).substr(0, 3);
        case 4:
            return WeekdayName(WeekdayOf(date));
        default:
            return FormatDate(date, "m/d/yyyy");
    }
}

std::string MonthField(int month, std::size_t run) {
    if (run == 1) return std::to_string(month);
    if (run == 2) return TwoDigits(month);
    return run == 3 ? MonthName(month).substr(0, 3) : MonthName(month);
}
}  // namespace

std::string FormatDate(Date date, std::string_view pattern) {
    const YearMonthDay parts = PartsOf(date);
    std::string text;
    while (!pattern.empty()) {
        const std::size_t run = RunLength(pattern);
        switch (pattern.front()) {
            case 'd':
                text += DayField(date, parts.day, run);
                break;
            case 'm':
                text += MonthField(parts.month, run);
                break;
            case 'y':
                text += run <= 2 ? TwoDigits(parts.year % 100) : Padded(parts.year, 4);
                break;
            default:
                text += pattern.substr(0, run);
        }
        pattern.remove_prefix(run);
    }
    return text;
}

std::string LongDate(Date date) { return FormatDate(date, "dddd, mmmm d, yyyy"); }

std::string GeneralDate(DateTime moment) {
    return ShortDate(moment.date) + " " + FormatTime(moment.second, "h:nn:ss AM/PM");
}

std::string FormatTime(int second, std::string_view pattern) {
    const bool halves = pattern.find("AM/PM") != std::string_view::npos;
    const int hour = second / 3600;
    const int shownHour = !halves ? hour : hour % 12 == 0 ? 12 : hour % 12;
    std::string text;
    const auto field = [&text](int value, std::size_t run) { text += Padded(value, run > 1 ? 2 : 1); };
    while (!pattern.empty()) {
        std::size_t run = RunLength(pattern);
        switch (pattern.front()) {
            case 'h':
                field(shownHour, run);
                break;
            case 'n':
            case 'm':
                field(second / 60 % 60, run);
                break;
            case 's':
                field(second % 60, run);
                break;
            default:
                if (pattern.starts_with("AM/PM")) {
                    text += hour < 12 ? "AM" : "PM";
                    run = 5;
                } else {
                    text += pattern.substr(0, run);
                }
        }
        pattern.remove_prefix(run);
    }
    return text;
}
