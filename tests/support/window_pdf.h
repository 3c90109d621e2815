// Documents printed into a file, and their text read back.
#pragma once

#include <QString>
#include <QStringList>

#include "forms/printer.h"
#include "forms/qt/printer.h"

/// While one lives, what is printed goes into a PDF file in the folder, and a printer is available.
class PdfPrinter {
  public:
    explicit PdfPrinter(const QString& folder, const QPageLayout& layout = A4Sheet());
    PdfPrinter(const PdfPrinter&) = delete;
    PdfPrinter& operator=(const PdfPrinter&) = delete;
    ~PdfPrinter();

    /// The text of each page of the document printed last, its lines as they stand on the paper.
    QStringList pages() const;

  private:
    QString path_;
    PrinterCalls previous_;
    bool wasAvailable_;
};
