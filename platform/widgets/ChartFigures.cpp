// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/ChartFigures.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

QString Shown(double value) { return QString::number(value, 'g', 6); }

QColor DefaultColour(std::size_t column) {
    constexpr std::array<QRgb, 6> colours = {0xff4c78a8, 0xff59a14f, 0xffd9982f,
                                             0xffa06ba0, 0xff3f9c9c, 0xffc8605a};
    return QColor::fromRgb(colours[column % colours.size()]);
}

}  // namespace

ChartFigures::ChartFigures(int rowCount, int columnCount)
    : columnLabels(static_cast<std::size_t>(columnCount)), rows_(0) {
    for (std::size_t column = 0; column < columnLabels.size(); ++column) {
        looks.push_back({.fill = DefaultColour(column)});
    }
    SetRowCount(rowCount);
}

void ChartFigures::SetRowCount(int rowCount) {
    rows_ = std::max(rowCount, 0);
    const auto rows = static_cast<std::size_t>(rows_);
    rowLabels_.resize(rows);
    rowNames_.resize(rows);
    rowLooks_.resize(rows);
    values_.resize(rows * columnLabels.size());
}

const QString& ChartFigures::PlaceLabel(int place) const {
    return ColumnsAreApart() ? ColumnLabel(place) : RowLabel(place);
}

const BarLook& ChartFigures::Look(int row, int column) const {
    const std::optional<BarLook>& own = rowLooks_[Index(row)];
    return own ? *own : looks[Index(column)];
}

const QString& ChartFigures::NameOf(int row) const {
    const QString& name = rowNames_[Index(row)];
    return name.isEmpty() ? RowLabel(row) : name;
}

std::pair<double, double> ChartFigures::Extent() const {
    std::pair<double, double> extent(0, 0);
    for (const double value : values_) {
        extent.first = std::min(extent.first, value);
        extent.second = std::max(extent.second, value);
    }
    return extent;
}

bool ChartFigures::AllWhole() const {
    return std::ranges::all_of(values_, [](double value) { return value == std::round(value); });
}

QString ChartFigures::PlaceText(int place) const {
    const QString& label = ColumnsAreApart() ? ColumnLabel(place) : NameOf(place);
    const QString start = label.isEmpty() ? QString() : QString(label + QStringLiteral(": "));
    if (ColumnsAreApart()) return start + Shown(Value(1, place));
    QStringList texts;
    for (int column = 1; column <= Columns(); ++column) {
        const QString& name = ColumnLabel(column);
        const QString figure = Shown(Value(place, column));
        const bool named = Columns() > 1 && !name.isEmpty();
        texts += named ? QString(name + QLatin1Char(' ') + figure) : figure;
    }
    return start + texts.join(QStringLiteral(", "));
}

QString ChartFigures::Description() const {
    QStringList texts;
    for (int place = 1; place <= Places(); ++place) texts += PlaceText(place);
    return texts.join(QStringLiteral("; "));
}

QString ChartFigures::Table() const {
    QString text;
    for (int column = 1; column <= Columns(); ++column) {
        text += QLatin1Char('\t') + ColumnLabel(column);
    }
    text += QLatin1Char('\n');
    for (int row = 1; row <= Rows(); ++row) {
        text += NameOf(row);
        for (int column = 1; column <= Columns(); ++column) {
            text += QLatin1Char('\t') + Shown(Value(row, column));
        }
        text += QLatin1Char('\n');
    }
    return text;
}
