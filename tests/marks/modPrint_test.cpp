// The printed month, read from what is drawn on the page.
#include "marks/modPrint.h"

#include "marks/modIcons.h"
#include "tests/marks/month.h"
#include "tests/support/printer.h"

namespace {
struct PrintTest : CalendarTest {
    PrintTest() {
        printer.unitsPerPoint = 0.0139;  // Letter: about an inch to the unit
        CheckPrinter();
    }
    void print(void (*command)() = mnuFilePrintCalendar_Click) {
        page.reset();
        command();
    }

    RecordedPrinter printer;
    std::optional<Recorder>& page = printer.page;
};

TEST_F(PrintTest, DrawsTheMonth) {
    folder.put("Holidays/2026Holidays.dat", "08/01/26:Swiss Day\r\n08/02/26:Sunday's\r\n");
    folder.put("2026Marks.dat", "07:06:00:255-Budget\r\n");
    folder.put("2026/Aug_Icons.dat", "00:03 Index:41\r\n01:00 Index:07\r\n");
    dialogs.expect("An error occurred in ReadIconTags.");  // none is installed here: the pictures are drawn by number
    show(1, 2026, 8, 1);
    Icons.badPictures.erase(41);
    print();
    EXPECT_EQ(printer.title, "August, 2026");
    EXPECT_TRUE(page->scaleWidth() == 8 && page->scaleHeight() == 11);
    for (const auto& call :  // on Saturday the mark decides over the holiday
         Pieces("text 3.5 0.6 'August, 2026' Arial 12 000000|text 0.896 0.975 'Sun' Arial 10 000000|"
                "line 7.5 0.875 7.5 7.25 000000|line 0.5 7.25 7.5 7.25 000000|"
                "text 6.937 1.55 '1' Arial 18 bold 0000FF|text 0.937 2.55 '2' Arial 18 bold FF0000|"
                "picture 7.26 1.95 0.236 0.289 41.ico|text 0.5 7.5 '1:' Arial 9 FF0000|"
                "text 0.82 7.5 'Holiday: Swiss Day' Arial 9 FF0000|text 0.82 7.67 'Meeting: Budget' Arial 9 0000FF|"
                "text 0.82 7.84 'Holiday: Sunday's' Arial 9 FF0000"))
        EXPECT_TRUE(page->has(call)) << call;
    EXPECT_EQ(page->containing("picture").size(), 1u);  // the other could not be read
    EXPECT_EQ(page->containing("line").size(), 16u);
    EXPECT_TRUE(DayPaint[30].painted && DayPaint[0].color == MeetingColor);

    Paint.numbersOffset = true;
    print(mnuFilePrintCalendarNoIcons_Click);
    EXPECT_TRUE(page->containing("picture").empty());
    EXPECT_TRUE(page->has("text 6.55 1.361 '1' Arial 10 bold 0000FF"));
}

TEST_F(PrintTest, ListsAtMostTwoColumnsOfEighteen) {
    for (const auto& [entries, printed] : {std::pair{18, 18}, {19, 19}, {36, 36}, {37, 36}}) {
        PutEntries(folder, entries);
        if (entries > printed) dialogs.expect("first 36 can be listed."), dialogs.expect("first 36 will be printed.");
        show(1, 2026, 7, 1);
        print();
        EXPECT_EQ(page->containing(":' Arial 9").size(), static_cast<std::size_t>(printed)) << entries;
        EXPECT_EQ(page->containing("text 0.5 10.39 '").size(), 1u) << entries;  // the 18th
        EXPECT_EQ(page->containing("text 4 7.5 '").size(), entries > 18 ? 1u : 0u) << entries;
    }
}

TEST_F(PrintTest, KeepsTheListInsideItsColumns) {
    folder.put("2026Marks.dat", "06:06:00:255-" + std::string(200, 'x') + "\r\n");
    printer.unitsPerPoint = 0.02;  // wide paper: less height for a line
    show(1, 2026, 7, 1);
    print();
    const auto texts = page->containing("Meeting: xx");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_NE(texts[0].find("xxx...' Arial 9 "), std::string::npos) << texts[0];
    EXPECT_LT(page->textWidth(texts[0].substr(texts[0].find("Mee"), texts[0].find("' Ar") - texts[0].find("Mee")),
                              {"Arial", 9}),
              3.5 - 0.32);
}

TEST_F(PrintTest, PrintsTheTemplateWithoutWeekdaysAndList) {
    PutEntries(folder, 3);
    show(1, 2026, 7, 1);
    TemplateMode = true;
    ResetMonthIcons(TemplateDate = MakeDate(2026, 1, 1));
    print();
    EXPECT_EQ(printer.title, "Monthly Template");
    EXPECT_TRUE(page->containing("'Sun'").empty() && page->containing("Arial 9").empty());
    for (const char* number : {"'28' Arial 18 bold 000000", "'29' Arial 18 bold C0C0C0", "'31' Arial 18 bold 0000FF"})
        EXPECT_EQ(page->containing(number).size(), 1u) << number;
}

TEST_F(PrintTest, TellsOfPrintersThatAreMissingOrFail) {
    show(1, 2026, 7, 1);
    PrinterAvailable = false;
    dialogs.expect("Printer could not be found");
    print();
    PrinterAvailable = true;
    SetPrinter({});
    dialogs.expect("An error occurred in Print1MonthCalendar.");
    print();
    EXPECT_FALSE(page);
}
}  // namespace
