// A calendar without windows: recorders for canvases, and what the main window was told.
#pragma once

#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "calendar/modPaint.h"
#include "calendar/modSelection.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "forms/recorder.h"
#include "marks/modCategories.h"
#include "tests/support/planner.h"

class CalendarTest : public PlannerTest {
  protected:
    CalendarTest();
    ~CalendarTest() override;

    /// Selects the day, and draws the view (1, 6 or 12) for it.
    void show(int view, int year, int month, int day) const;
    /// The recorder of a month on display, by its place.
    const Recorder& month(std::size_t index) const { return recorders_.at(index); }
    /// The point in the middle of a date's cell, on its shown month; selects it.
    static bool click(int year, int month, int day);
    /// The colour that a date's cell on its shown month was painted last.
    static Color painted(int year, int month, int day);
    static std::string hoverText(int year, int month, int day);

    std::map<std::string, bool> enabled;  // menu items, as last told
    std::map<int, std::string> monthCaptions;
    std::string caption;
    std::string holidayLabel;
    std::string templateLabel;
    std::string pickers;  // "November 22 2026"
    int pressed = -1;
    int menusOpened = 0;

  private:
    mutable std::deque<Recorder> recorders_;
};

/// The colours of the test's categories: Meeting red, Birthday purple, Holiday blue, Quick Marks teal, Today's Date
/// cyan.
inline constexpr Color MeetingColor = 0x0000FF;
inline constexpr Color BirthdayColor = 0x800080;
inline constexpr Color HolidayColor = 0xFF0000;
inline constexpr Color QuickMarksColor = 0x808000;
inline constexpr Color TodayColor = 0xFFFF00;

/// The file of fourteen categories with those colours.
inline constexpr const char* CategoryLines =
    "Account Payable:128\r\nAccount Receivable:33023\r\nAnniversary:16512\r\nAppointment:65535\r\n"
    "Birthday:8388736\r\nCelebration:32896\r\nDining:65280\r\nEvent:32768\r\nHoliday:16711680\r\n"
    "Meeting:255\r\nQuick Marks:8421376\r\nToday's Date:16776960\r\nTravel:8388608\r\nVacation:16711935\r\n";
/// Writes it.
void PutCategories(const TemporaryFolder& folder);
