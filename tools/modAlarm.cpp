// Times of the alarm, and when they come.
#include "tools/modAlarm.h"

#include <algorithm>

#include "base/text.h"

namespace {
constexpr int MinutesInHalfDay = 12 * 60;

/// The number of one or two digits; nothing for anything else that is short, Error 6 for what is far too large.
std::optional<int> ClockNumber(std::string_view digits, int lowest, int highest) {
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
    const int value = SmallIntegerValue(digits);
    if (digits.size() > 2 || value < lowest || value > highest) return std::nullopt;
    return value;
}
}  // namespace

std::optional<int> ReadAlarmTime(std::string_view text) {
    text = Trimmed(text);
    if (text.size() < 2) return std::nullopt;
    const std::string_view half = text.substr(text.size() - 2);
    const bool afternoon = EqualIgnoringCase(half, "PM");
    if (!afternoon && !EqualIgnoringCase(half, "AM")) return std::nullopt;
    const std::string_view time = Trimmed(text.substr(0, text.size() - 2));
    const auto colon = time.find(':');
    const auto hour = ClockNumber(time.substr(0, colon), 1, 12);
    const auto minute = colon == std::string_view::npos ? 0 : ClockNumber(time.substr(colon + 1), 0, 59);
    if (!hour || !minute) return std::nullopt;
    return *hour % 12 * 60 + *minute + (afternoon ? MinutesInHalfDay : 0);
}

void ChooseAlarmHour(AlarmState& alarm, std::string_view caption) {
    alarm.hourText = caption;
    if (alarm.minuteText.empty()) alarm.minuteText = ":00";
    alarm.timeText = alarm.hourText + alarm.minuteText;
}

void ChooseAlarmMinute(AlarmState& alarm, std::string_view caption) {
    alarm.minuteText = caption;
    alarm.timeText = alarm.hourText + alarm.minuteText;
}

bool SetAlarmHalf(AlarmState& alarm, std::string_view half) {
    alarm.alarmText = alarm.timeText + " " + std::string(half);
    alarm.alarmTime.reset();
    alarm.alarmTime = ReadAlarmTime(alarm.alarmText);
    return alarm.alarmTime.has_value();
}

bool ArmAlarm(AlarmState& alarm, DateTime now) {
    if (!alarm.alarmTime) return false;
    const bool tomorrow = *alarm.alarmTime < now.second / 60;
    alarm.due = DateTime{now.date + (tomorrow ? 1 : 0), *alarm.alarmTime * 60};
    return true;
}

bool AlarmRings(AlarmState& alarm, DateTime now) {
    if (!alarm.due || now < *alarm.due) return false;
    alarm.due.reset();
    alarm.ticks = 0;
    alarm.lit = false;
    return true;
}

bool NextAlarmBeat(AlarmState& alarm) {
    alarm.lit = !alarm.lit;
    return ++alarm.ticks < AlarmBeats;
}

std::string AlarmReachedText(const AlarmState& alarm) {
    return "The Alarm time of " + alarm.alarmText + " has been reached.";
}
