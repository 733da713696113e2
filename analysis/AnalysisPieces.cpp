// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/AnalysisPieces.h"

#include <QCoreApplication>
#include <QLabel>

#include "platform/widgets/Widgets.h"

namespace {

QString tr(const char* text) { return QCoreApplication::translate("AnalysisPieces", text); }

QString DrawInWords(int row, int draws) {
    if (row > draws) return tr("behind the last draw");
    return row == 1 ? tr("draw 1, the newest") : tr("draw %1").arg(row);
}

}  // namespace

void NameDraws(Chart& chart, int draws, DrawLabels labels) {
    for (int row = 1; row <= chart.rowCount(); ++row) {
        chart.SetRowLabel(row, labels == DrawLabels::Shown ? QString::number(row) : QString());
        chart.SetRowName(row, DrawInWords(row, draws));
    }
    chart.SetCaption(tr("draws, the newest first"));
}

QLabel* MakeFigure(const QString& name) {
    QLabel* label = MakeLabel(name, {});
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    label->setFont(font);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}
