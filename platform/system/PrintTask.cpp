// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/PrintTask.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>
#include <memory>

#include "core/failure.h"
#include "platform/system/PageDrawing.h"
#include "platform/system/TextConversion.h"

namespace {

QString Said(const char* text) { return QCoreApplication::translate("PrintTask", text); }

/// The largest place for the picture on the sheet, in twips, in the middle of its width.
QRectF PlaceOf(const QSizeF& picture, const QSizeF& room) {
    const QSizeF size = picture.scaled(room * twipsPerMillimetre, Qt::KeepAspectRatio);
    return {QPointF((room.width() * twipsPerMillimetre - size.width()) / 2, 0), size};
}

}  // namespace

PrintTask TaskOf(const PrintJob& job) {
    return {.title = ToQString(job.title),
            .options = job.options,
            .layOut = [job](const QSizeF& room, const PageCorrection& correction) {
                Document composed = job.compose(RoomOn(room));
                if (job.corrected) composed = Corrected(std::move(composed), correction);
                const auto document = std::make_shared<Document>(std::move(composed));
                return PrintedSheets{.count = static_cast<int>(document->sheets.size()),
                                     .paint = [document](QPainter& painter, int sheet) {
                                         const auto index = static_cast<std::size_t>(sheet);
                                         DrawSheet(painter, document->sheets.at(index));
                                     }};
            }};
}

PrintTask TaskOf(const PictureJob& job) {
    return {.title = job.title,
            .options = job.options,
            .layOut = [job](const QSizeF& room, const PageCorrection&) {
                return PrintedSheets{.count = 1, .paint = [job, room](QPainter& painter, int) {
                                         job.paint(painter, PlaceOf(job.size, room));
                                     }};
            }};
}

QPageSize::PageSizeId PageSizeOf(PaperSize paper) {
    switch (paper) {
        case PaperSize::A4:
            return QPageSize::A4;
        case PaperSize::A3:
            return QPageSize::A3;
        case PaperSize::Letter:
            return QPageSize::Letter;
        case PaperSize::Legal:
            break;
    }
    return QPageSize::Legal;
}

QPageLayout::Orientation PageOrientationOf(Orientation orientation) {
    return orientation == Orientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

QPageLayout OwnLayout(const PrintOptions& options) {
    return {QPageSize(PageSizeOf(options.paper.value_or(PaperSize::A4))),
            PageOrientationOf(options.orientation.value_or(Orientation::Portrait)),
            QMarginsF(0, 0, 0, 0)};
}

QString PaintSheets(QPagedPaintDevice& device, double unitsPerInch, const PrintedSheets& sheets) {
    QPainter painter;
    if (!painter.begin(&device)) return Said("the document cannot be begun");
    for (int sheet = 0; sheet < sheets.count; ++sheet) {
        if (sheet > 0 && !device.newPage()) return Said("no further sheet can be begun");
        painter.save();
        painter.scale(unitsPerInch / twipsPerInch, unitsPerInch / twipsPerInch);
        sheets.paint(painter, sheet);
        painter.restore();
    }
    return painter.end() ? QString() : Said("the document cannot be ended");
}

QByteArray PdfOf(const PrintTask& task, const PageCorrection& correction) {
    const QPageLayout layout = OwnLayout(task.options);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(static_cast<int>(twipsPerInch));
    writer.setPageLayout(layout);
    writer.setTitle(task.title);
    writer.setCreator(QStringLiteral("Lottery Quillon World"));
    const QSizeF room = layout.paintRect(QPageLayout::Millimeter).size();
    const QString problem = PaintSheets(writer, twipsPerInch, task.layOut(room, correction));
    if (!problem.isEmpty()) throw Failure("The PDF: " + FromQString(problem));
    return bytes;
}
