// The printed month on paper of both sizes and orientations, read back from a PDF file.
#include <QPageLayout>

#include "marks/modPrint.h"
#include "tests/marks/month.h"
#include "tests/support/window_pdf.h"

namespace {
using PrintedMonth = CalendarTest;

TEST_F(PrintedMonth, FitsTheSheet) {
    std::filesystem::copy(TASMORO_ICONS, folder.path(), std::filesystem::copy_options::recursive);
    folder.put("2026/Jul_Icons.dat", "00:00 Index:12\r\n30:03 Index:95\r\n");
    PutEntries(folder, 36);
    show(1, 2026, 7, 1);
    for (const auto size : {QPageSize::A4, QPageSize::Letter})
        for (const auto orientation : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            const PdfPrinter printer(QString::fromStdString(folder.path().string()),
                                     QPageLayout(QPageSize(size), orientation, QMarginsF()));
            mnuFilePrintCalendar_Click();
            const QStringList pages = printer.pages();
            ASSERT_EQ(pages.size(), 1);
            for (const char* text :
                 {"July, 2026", "Sun", "Sat", "31", "Meeting: number 1", "Meeting: number 31", "Holiday: Holiday 36"})
                EXPECT_TRUE(pages[0].contains(QString::fromLatin1(text))) << text << " " << size << " " << orientation;
        }
}
}  // namespace
