// The system's clock behind a replaceable procedure.
#include "base/clock.h"

#include <ctime>
#include <utility>

namespace {
std::function<DateTime()> Clock;

DateTime SystemNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    tzset();  // the machine may have been taken to another time zone
    localtime_r(&now, &local);
#endif
    // A leap second (60) counts as the second before it.
    const int second = local.tm_hour * 3600 + local.tm_min * 60 + (local.tm_sec < 60 ? local.tm_sec : 59);
    return {MakeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday), second};
}
}  // namespace

DateTime Now() { return Clock ? Clock() : SystemNow(); }

void SetClock(std::function<DateTime()> clock) { Clock = std::move(clock); }
