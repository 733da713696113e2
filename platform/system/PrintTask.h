// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QString>
#include <functional>

#include "platform/system/Printers.h"

class QPagedPaintDevice;

/// A document laid out for one printer. The painter's origin is the printer's, its unit a twip.
struct PrintedSheets {
    int count = 0;
    std::function<void(QPainter&, int sheet)> paint;
};

/// What is to be printed, whatever it is made of.
struct PrintTask {
    QString title;
    PrintOptions options;
    /// Lays the document out for sheets of which so many millimetres can be printed on.
    std::function<PrintedSheets(const QSizeF& room, const PageCorrection& correction)> layOut;
};

PrintTask TaskOf(const PrintJob& job);
PrintTask TaskOf(const PictureJob& job);

QPageSize::PageSizeId PageSizeOf(PaperSize paper);
QPageLayout::Orientation PageOrientationOf(Orientation orientation);

/// The sheet of our own printer: the paper asked for, A4 where none is, without an unprintable
/// edge.
QPageLayout OwnLayout(const PrintOptions& options);

/// Paints all sheets. What goes wrong is told in a few words; without words all went well.
QString PaintSheets(QPagedPaintDevice& device, double unitsPerInch, const PrintedSheets& sheets);

/// The document as a PDF on our own sheets; a `Failure` where it cannot be made.
QByteArray PdfOf(const PrintTask& task, const PageCorrection& correction);
