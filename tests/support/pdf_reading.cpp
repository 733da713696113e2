// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/pdf_reading.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <stdexcept>

namespace {

constexpr double millimetresPerPoint = 25.4 / 72;

QByteArray Run(const QString& tool, const QByteArray& pdf, const QStringList& before,
               const QStringList& behind) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("document.pdf")));
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size()) {
        throw std::runtime_error("the PDF cannot be stored");
    }
    file.close();
    QProcess process;
    process.start(tool, before + QStringList{file.fileName()} + behind);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        throw std::runtime_error(tool.toStdString() + " failed (package poppler-utils): " +
                                 process.readAllStandardError().toStdString());
    }
    return process.readAllStandardOutput();
}

double Number(const QXmlStreamReader& reader, const char* name) {
    return reader.attributes().value(QLatin1String(name)).toDouble() * millimetresPerPoint;
}

}  // namespace

QRectF PdfSheet::Word(const QString& text) const {
    QRectF box;
    int count = 0;
    std::string all;
    for (const PdfWord& word : words) {
        all += word.text.toStdString() + " ";
        if (word.text != text) continue;
        box = word.box;
        ++count;
    }
    EXPECT_EQ(count, 1) << text.toStdString() << " in " << all;
    return box;
}

std::vector<PdfSheet> ReadPdfWords(const QByteArray& pdf) {
    QXmlStreamReader reader(
        Run(QStringLiteral("pdftotext"), pdf, {QStringLiteral("-bbox")}, {QStringLiteral("-")}));
    std::vector<PdfSheet> sheets;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) continue;
        if (reader.name() == QLatin1String("page")) {
            sheets.push_back({{Number(reader, "width"), Number(reader, "height")}, {}});
        } else if (reader.name() == QLatin1String("word")) {
            const QPointF from(Number(reader, "xMin"), Number(reader, "yMin"));
            const QPointF to(Number(reader, "xMax"), Number(reader, "yMax"));
            sheets.back().words.push_back({reader.readElementText(), QRectF(from, to)});
        }
    }
    return sheets;
}

std::vector<QRectF> ReadPdfRectangles(const QByteArray& pdf, int sheet) {
    const QString number = QString::number(sheet);
    const QString svg = QString::fromUtf8(
        Run(QStringLiteral("pdftocairo"), pdf,
            {QStringLiteral("-svg"), QStringLiteral("-f"), number, QStringLiteral("-l"), number},
            {QStringLiteral("-")}));
    static const QRegularExpression path(
        QStringLiteral("<path (?=[^>]*fill-rule)[^>]*\\bd=\"M ([-.\\d]+) ([-.\\d]+) "
                       "L [-.\\d]+ [-.\\d]+ L ([-.\\d]+) ([-.\\d]+) L [-.\\d]+ [-.\\d]+ Z[^>]*>"));
    std::vector<QRectF> rectangles;
    auto match = path.globalMatch(svg);
    while (match.hasNext()) {
        const auto found = match.next();
        const auto at = [&found](int capture) {
            return found.captured(capture).toDouble() * millimetresPerPoint;
        };
        rectangles.push_back(QRectF(QPointF(at(1), at(2)), QPointF(at(3), at(4))).normalized());
    }
    return rectangles;
}

QByteArray ReadPdfFonts(const QByteArray& pdf) {
    return Run(QStringLiteral("pdffonts"), pdf, {}, {});
}
