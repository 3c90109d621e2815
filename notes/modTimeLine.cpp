// The half-hourly schedule of a day.
#include "notes/modTimeLine.h"

#include "base/dates.h"
#include "base/text.h"

std::string TimeLine() {
    constexpr int HalfHour = 30 * 60;
    constexpr int First = 6 * 3600;
    constexpr int Day = 24 * 3600;
    std::string lines;
    for (int second = First; second < Day; second += HalfHour)
        lines += FormatTime(second, "hh:nn AM/PM") + " - " + CrLf + CrLf;
    return lines;
}
