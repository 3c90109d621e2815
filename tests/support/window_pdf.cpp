// Documents printed into a file, and their text read back.
#include "tests/support/window_pdf.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <utility>

PdfPrinter::PdfPrinter(const QString& folder, const QPageLayout& layout)
    : path_(folder + QStringLiteral("/printed.pdf")), previous_(SetPrinter({})), wasAvailable_(PrinterAvailable) {
    InstallPdfPrinter(path_, layout);
    CheckPrinter();
}

PdfPrinter::~PdfPrinter() {
    SetPrinter(std::move(previous_));
    PrinterAvailable = wasAvailable_;
    QFile::remove(path_);
}

QStringList PdfPrinter::pages() const {
    if (!QFile::exists(path_)) return {};
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path_, QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished() && reader.exitCode() == 0) << "pdftotext (poppler-utils) is needed";
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f'));
    pages.removeLast();  // each page ends with a form feed
    return pages;
}
