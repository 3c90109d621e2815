// Walking a period in steps of seven days.
#include "tools/modNumDays.h"

#include <algorithm>

#include "base/state.h"

NumDaysState NumDays;

namespace {
const ClearedAtStart ClearNumDays([] { NumDays = {}; });

std::string NameOfDay() { return WeekdayName(NumDays.weekday + 1); }

/// Writes one short date after the other, each a week later. Only the day is added to: taking each date apart anew
/// would cost more than showing it.
class WeeklyDates {
  public:
    explicit WeeklyDates(Date first) : parts_(PartsOf(first)) { enterMonth(); }

    void appendTo(std::string& text) const {
        text += monthText_;
        if (parts_.day >= 10) text += static_cast<char>('0' + parts_.day / 10);
        text += static_cast<char>('0' + parts_.day % 10);
        text += yearText_;
    }

    void next() {
        parts_.day += 7;
        if (parts_.day <= daysInMonth_) return;
        parts_.day -= daysInMonth_;
        if (++parts_.month > 12) parts_.month = 1, ++parts_.year;
        enterMonth();
    }

  private:
    void enterMonth() {
        daysInMonth_ = DaysInMonth(parts_.year, parts_.month);
        monthText_ = std::to_string(parts_.month) + "/";
        yearText_ = "/" + std::to_string(parts_.year);
    }

    YearMonthDay parts_;
    int daysInMonth_ = 0;
    std::string monthText_;
    std::string yearText_;
};
}  // namespace

Occurrences CountWeekdays() {
    const int daysAhead = (NumDays.weekday + 1 - WeekdayOf(NumDays.start) + 7) % 7;
    const Date first = NumDays.start + daysAhead;
    if (first > NumDays.end) return {};
    const int count = (NumDays.end - first) / 7 + 1;
    return {first, std::min(count, MostOccurrences), count > MostOccurrences};
}

void ListOccurrences(const Occurrences& found, const std::function<void(std::string_view)>& take) {
    const std::string name = NameOfDay() + " ";
    std::string entry;
    WeeklyDates date(found.first);
    for (int week = 0; week < found.count; ++week) {
        entry = name;
        date.appendTo(entry);
        date.next();
        take(entry);
    }
}

std::string OccurrencesText(const Occurrences& found) {
    return NameOfDay() + " found " + std::to_string(found.count) + " times";
}
