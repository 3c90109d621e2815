// The printed page: what is drawn in twips stands on the paper where it should.
#include <gtest/gtest.h>

#include <QStringList>

#include "base/errors.h"
#include "forms/qt/printer.h"
#include "tests/support/folder.h"
#include "tests/support/window_pdf.h"

TEST(Printer, MeasuresA4InTheUnitsOfItsScaleAndFailsWithThePrintersError) {
    const TemporaryFolder folder;
    const PdfPrinter printer(QString::fromStdString(folder.path().string()));
    const auto page = Printer().begin("Measures");
    EXPECT_NEAR(page->scaleWidth(), 8.27 * 1440, 15);
    EXPECT_NEAR(page->scaleHeight(), 11.69 * 1440, 15);
    // Twelve points are 240 twips; a line of Arial is 1.117 times its size high, an "M" 0.833 times wide.
    const Font font{"Arial", 12};
    EXPECT_NEAR(page->textHeight(font), 240 * 1.117, 3);
    EXPECT_NEAR(page->textWidth("MM", font), 2 * 240 * 0.833, 6);
    page->text(540, 720, "Fran\xE7oise: 35 \x80", font, Black);
    page->setScale(page->scaleWidth() / 1440, page->scaleHeight() / 1440);
    EXPECT_NEAR(page->textWidth("MM", font), 2 * 240 * 0.833 / 1440, 0.01);
    EXPECT_THROW(page->picture(0, 0, 10, 10, folder.path() / "none.ico"), Error);
    page->end();
    EXPECT_EQ(printer.pages().value(0).trimmed(), QStringLiteral("Fran\u00E7oise: 35 \u20AC"));
    InstallPdfPrinter(QString::fromStdString((folder.path() / "no folder" / "a.pdf").string()));
    EXPECT_THROW(Printer().begin("Nowhere"), Error);
}
