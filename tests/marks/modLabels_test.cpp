// The day labels of a month.
#include "marks/modLabels.h"

#include "marks/modIcons.h"
#include "reminders/modBirthdays.h"
#include "tests/marks/month.h"

namespace {
std::string AllLabels() {
    std::string all;
    for (const DayEntry& label : DayLabels.labels) all += CaptionOf(label) + "|";
    return all;
}

using LabelsTest = CalendarTest;

TEST_F(LabelsTest, ListByDayHolidaysBirthdaysMarks) {
    folder.put("Holidays/2026Holidays.dat", "07/04/26:Independence Day\r\n08/04/26:Another\r\n");
    folder.put("Birthdays.dat", "07/04:01:Anna:1990\r\n02/29:01:Leap:2000\r\n07/12:01:Hugo:****\r\n");
    // The 4th of July 2026 is a Saturday; the 12th a Sunday; the 6th a Monday; the 4th of August a Tuesday.
    folder.put("2026Marks.dat",
               "06:00:02:255-Budget review\r\n06:01:01:8421376\r\n06:06:00:65535\r\n07:02:01:255\r\n06:01:02:1234\r\n");
    ReadBirthdays();
    show(1, 2026, 7, 1);
    EXPECT_EQ(AllLabels(),
              "04: Holiday: Independence Day|04: Birthday: Anna|04: Appointment|06: Quick Marks|12: Birthday: Hugo|"
              "12: Meeting: Budget review|");
    EXPECT_EQ(DayLabels.labels[1].color, BirthdayColor);
    MarkLines.emplace_back("06:00");
    dialogs.expect("An error occurred in DisplayTTTLabels.");
    DisplayTTTLabels();
    EXPECT_EQ(DayLabels.labels.size(), 6u) << "a failure keeps the labels there were";
    MarkLines.pop_back();

    for (const auto category : {3u, 4u, 8u}) MarkerHidden[category] = true;
    DisplayTTTLabels();
    EXPECT_EQ(AllLabels(), "06: Quick Marks|12: Meeting: Budget review|");

    TemplateMode = true;
    MarkerHidden = {};
    DisplayTTTLabels();
    EXPECT_EQ(DayLabels.labels.size(), 2u);
}

TEST_F(LabelsTest, ThirtySixFitAndTheLatestGo) {
    PutEntries(folder, 37);
    dialogs.expect("first 36 can be listed. You may wish to hide some of the marks and\r\nrefresh the calendar.");
    show(1, 2026, 7, 1);
    EXPECT_EQ(DayLabels.labels.size(), 36u);
    EXPECT_EQ(CaptionOf(DayLabels.labels.back()), "30: Meeting: number 30");
}
}  // namespace
