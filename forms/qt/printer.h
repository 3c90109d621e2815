// The printer behind forms/printer.h: the system's printers, and a file in their place.
#pragma once

#include <QPageLayout>
#include <QString>

/// Fills the printer's calls with the system's printers. The current one is the system's default until another is
/// selected.
void InstallPrinter();

/// The whole sheet of A4, upright.
QPageLayout A4Sheet();

/// Fills them with a printer that writes each document as a PDF file of such pages, replacing the one before.
void InstallPdfPrinter(const QString& path, const QPageLayout& layout = A4Sheet());
