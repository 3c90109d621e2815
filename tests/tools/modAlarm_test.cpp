// The alarm's time, when it rings, and its signal.
#include "tools/modAlarm.h"

#include "tests/support/planner.h"

TEST(Alarm, ReadsTimes) {
    using Row = std::pair<const char*, std::optional<int>>;
    for (const auto& [text, minute] :
         {Row{"7:00 AM", 420}, Row{"07:05 AM", 425}, Row{"12:30 AM", 30}, Row{"12:30 PM", 750}, Row{"11:59 PM", 1439},
          Row{"7 pm", 1140}, Row{"7:5 AM", 425}, Row{" AM", {}}, Row{":05 AM", {}}, Row{"7: AM", {}},
          Row{"0:30 AM", {}}, Row{"13:00 PM", {}}, Row{"7:60 AM", {}}, Row{"7:00:00 AM", {}}, Row{"007:00 AM", {}},
          Row{"7:00", {}}, Row{"", {}}, Row{"-7:00 AM", {}}})
        EXPECT_EQ(ReadAlarmTime(text), minute) << text;
    EXPECT_THROW(ReadAlarmTime("70000:00 AM"), Error);
}

TEST(Alarm, RingsAtItsMinuteAlsoOverMidnight) {
    const Date day = MakeDate(2026, 12, 31);
    const auto at = [&](int days, int hour, int minute, int second) {
        return DateTime{day + days, hour * 3600 + minute * 60 + second};
    };
    using Row = std::tuple<const char*, DateTime, DateTime, DateTime>;
    for (const auto& [time, armed, lastSilent, rings] :
         {Row{"7:05 AM", at(0, 7, 5, 59), at(0, 7, 5, 0), at(0, 7, 5, 59)},
          Row{"7:05 AM", at(0, 6, 0, 0), at(0, 7, 4, 59), at(0, 7, 5, 9)},
          Row{"7:05 AM", at(0, 7, 6, 0), at(1, 7, 4, 59), at(1, 7, 5, 0)},
          Row{"12:00 AM", at(0, 23, 59, 58), at(0, 23, 59, 59), at(1, 0, 0, 8)},
          Row{"12:30 AM", at(0, 12, 30, 0), at(1, 0, 29, 59), at(1, 0, 30, 0)},
          Row{"11:59 PM", at(0, 23, 0, 0), at(0, 23, 58, 59), at(1, 8, 0, 0)}}) {  // slept through
        AlarmState alarm;
        alarm.alarmTime = ReadAlarmTime(time);
        ASSERT_TRUE(ArmAlarm(alarm, armed));
        EXPECT_FALSE(lastSilent >= armed && AlarmRings(alarm, lastSilent)) << time;
        EXPECT_TRUE(AlarmRings(alarm, rings)) << time;
        EXPECT_FALSE(AlarmRings(alarm, rings)) << "only once";
    }
}
