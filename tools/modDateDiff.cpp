// Counting intervals between two dates.
#include "tools/modDateDiff.h"

#include <algorithm>

#include "base/errors.h"
#include "base/state.h"
#include "base/text.h"

DateDiffState DateDiff;

namespace {
const ClearedAtStart ClearDateDiff([] { DateDiff = {}; });

/// Months of which `length` make one interval, counted from the year 0.
std::int64_t IntervalOf(Date date, int length) {
    const YearMonthDay parts = PartsOf(date);
    return (parts.year * 12 + parts.month - 1) / length;
}
}  // namespace

std::string IntervalName(std::string_view code) {
    const auto* found = std::find_if(Intervals.begin(), Intervals.end(), [&](auto& one) { return one.code == code; });
    return found == Intervals.end() ? "" : found->name;
}

bool ChooseInterval(std::string_view name) {
    const auto* found = std::find_if(Intervals.begin(), Intervals.end(), [&](auto& one) { return one.name == name; });
    if (found == Intervals.end()) return false;
    DateDiff.intervalCode = found->code;
    return true;
}

std::int64_t DateDifference(Date start, Date end, std::string_view code) {
    const std::int64_t days = end - start;
    const auto crossed = [&](int months) { return IntervalOf(end, months) - IntervalOf(start, months); };
    if (code == "yyyy") return crossed(12);
    if (code == "q") return crossed(3);
    if (code == "m") return crossed(1);
    if (code == "w") return days / 7;
    if (code == "d") return days;
    if (code == "h") return days * 24;
    if (code == "n") return days * 1440;
    if (code == "s") return days * 86400;
    throw Error(InvalidCall);
}

std::string DifferenceText(std::int64_t difference) { return difference == 0 ? "" : WithThousands(difference); }
