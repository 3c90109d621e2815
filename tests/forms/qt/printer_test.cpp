// The printed page: what is drawn in twips stands on the paper where it should.
#include <gtest/gtest.h>

#include <QStringList>

#include "base/errors.h"
#include "forms/qt/printer.h"
#include "tests/support/folder.h"
#include "tests/support/window_pdf.h"

namespace {
struct PrinterTest : testing::Test {
    TemporaryFolder folder;
    PdfPrinter printer{QString::fromStdString(folder.path().string())};
};

TEST_F(PrinterTest, PrintsPagesInTwipsOfA4) {
    const auto page = Printer().begin("Two pages");
    EXPECT_NEAR(page->scaleWidth(), 8.27 * 1440, 15);
    EXPECT_NEAR(page->scaleHeight(), 11.69 * 1440, 15);
    const Font font{"Arial", 10};
    page->text(540, 720, "Fran\xE7oise: 35 \x80", font, Black);
    page->newPage();
    page->text(540, 720, "the second", font, Black);
    page->end();
    EXPECT_EQ(printer.pages().size(), 2);
    EXPECT_EQ(printer.pages().value(0).trimmed(), QStringLiteral("Fran\u00E7oise: 35 \u20AC"));
    EXPECT_EQ(printer.pages().value(1).trimmed(), QStringLiteral("the second"));
}

TEST_F(PrinterTest, MeasuresTextInTheUnitsOfItsScale) {
    const auto page = Printer().begin("Measures");
    const Font font{"Arial", 12};
    // Twelve points are 240 twips; a line of Arial is 1.117 times its size high, an "M" 0.833 times wide.
    EXPECT_NEAR(page->textHeight(font), 240 * 1.117, 3);
    EXPECT_NEAR(page->textWidth("MM", font), 2 * 240 * 0.833, 6);
    page->setScale(page->scaleWidth() / 1440, page->scaleHeight() / 1440);
    EXPECT_NEAR(page->textWidth("MM", font), 2 * 240 * 0.833 / 1440, 0.01);
    page->end();
}

TEST_F(PrinterTest, FailsWithThePrintersError) {
    const auto page = Printer().begin("Picture");
    EXPECT_THROW(page->picture(0, 0, 10, 10, folder.path() / "none.ico"), Error);
    InstallPdfPrinter(QString::fromStdString((folder.path() / "no folder" / "a.pdf").string()));
    EXPECT_THROW(Printer().begin("Nowhere"), Error);
}
}  // namespace
