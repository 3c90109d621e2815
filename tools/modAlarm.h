// The alarm clock: its time as chosen or typed, when it rings, and the signal's beats.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/dates.h"

inline constexpr int AlarmCheckMilliseconds = 10000;
inline constexpr int AlarmSignalMilliseconds = 1000;
inline constexpr int AlarmBeats = 5;

/// What one alarm window knows. Nothing of it is stored.
struct AlarmState {
    std::string hourText;          // "7"
    std::string minuteText;        // ":05"
    std::string timeText;          // "7:05", as the time box has it
    std::string alarmText;         // "7:05 AM"
    std::optional<int> alarmTime;  // the minute of the day, 0..1439, once a valid time is set
    std::optional<DateTime> due;   // when it rings; set while armed
    int ticks = 0;                 // 0..AlarmBeats
    bool lit = false;              // the message is to be seen
};

/// The minute of the day of a text like "7:05 AM", "07:05 am", "12:30 PM" or "7 AM". Nothing if it is no time. Throws
/// Error 6 for an hour or minute of more than 16 bits.
std::optional<int> ReadAlarmTime(std::string_view text);

/// A button of the hours ("7") or of the minutes (":05") was clicked: completes the time text.
void ChooseAlarmHour(AlarmState& alarm, std::string_view caption);
void ChooseAlarmMinute(AlarmState& alarm, std::string_view caption);

/// Completes the alarm's text by "AM" or "PM". False if that is no time; then no time is set. Throws what ReadAlarmTime
/// throws.
bool SetAlarmHalf(AlarmState& alarm, std::string_view half);

/// Arms the alarm for the next time the clock shows its minute, the current minute included. False without a time.
bool ArmAlarm(AlarmState& alarm, DateTime now);

/// True once when the time has come; it is also found after the minute itself was slept through. Disarms the alarm and
/// begins the signal.
bool AlarmRings(AlarmState& alarm, DateTime now);

/// One beat of the signal: turns the light on or off. False after the last one.
bool NextAlarmBeat(AlarmState& alarm);

/// "The Alarm time of 7:05 AM has been reached."
std::string AlarmReachedText(const AlarmState& alarm);
