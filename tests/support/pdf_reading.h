// SPDX-License-Identifier: GPL-3.0-or-later
// Reads a PDF back with the tools of poppler-utils, in millimetres from the sheet's top left
// corner.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>
#include <vector>

struct PdfWord {
    QString text;
    QRectF box;  ///< From the top of the line to the depth of its letters.
};

struct PdfSheet {
    QSizeF size;
    std::vector<PdfWord> words;

    /// The only word that reads so; a miss fails the test and prints the words there are.
    QRectF Word(const QString& text) const;
};

std::vector<PdfSheet> ReadPdfWords(const QByteArray& pdf);

/// The filled rectangles of a sheet, counted from 1, in the order in which they were drawn.
std::vector<QRectF> ReadPdfRectangles(const QByteArray& pdf, int sheet = 1);

/// The text of all sheets with the fonts of its parts: whether a font of that name is in the PDF.
QByteArray ReadPdfFonts(const QByteArray& pdf);
