// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/ImportLeftOutPage.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "databases/ImportWords.h"
#include "databases/RowTable.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int narrowestColumn = 20;
constexpr int widestColumn = 70;

/// Whether somebody may have expected a draw in the row.
bool IsNotable(LeftOut reason) {
    return reason != LeftOut::Heading && reason != LeftOut::Rule && reason != LeftOut::Text;
}

void AddDraws(const std::vector<MergeConflict>& draws, std::vector<ShownRow>& rows) {
    for (const MergeConflict& conflict : draws) {
        rows.push_back({.cells = {ToQString(conflict.why),
                                  DayInWords(conflict.draw.date) % QStringLiteral(": ") %
                                      ToQString(DrawInWords(conflict.draw))},
                        .number = conflict.draw.line,
                        .key = conflict.draw.row,
                        .faint = false,
                        .ticked = {},
                        .tip = {}});
    }
}

}  // namespace

ImportLeftOutPage::ImportLeftOutPage(QWidget* parent) : QWidget(parent) {
    auto* title = MakeLabel(QStringLiteral("LeftOutTitle"),
                            tr("Rows that do not go into the lottery, and why:"));
    rows_ = Titled(title, Named(new RowTable, QStringLiteral("LeftOut")));
    rows_->setMinimumHeight(120);
    rows_->SetLeftAligned({0, 1});
    rows_->horizontalHeader()->setStretchLastSection(true);
    rows_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    copy_ = MakeButton(QStringLiteral("CopyLeftOut"), tr("Copy list"));
    connect(copy_, &QPushButton::clicked, this, [this] { CopyAll(); });
    auto* column = new QVBoxLayout(this);
    column->setSpacing(4);
    column->addWidget(title);
    column->addWidget(rows_, 1);
    column->addWidget(copy_, 0, Qt::AlignLeft);
}

int ImportLeftOutPage::Show(const ImportSession& session, const MergedDatabase* merged) {
    std::vector<ShownRow> rows;
    if (merged != nullptr) {
        AddDraws(merged->conflicts, rows);
        AddDraws(merged->unfit, rows);
    }
    auto notable = static_cast<int>(rows.size());
    for (const LeftOutRow& row : session.Taken().leftOut) {
        if (IsNotable(row.reason)) ++notable;
        rows.push_back({.cells = {ToQString(row.why), ToQString(row.text)},
                        .number = row.line,
                        .key = row.row,
                        .faint = !IsNotable(row.reason),
                        .ticked = {},
                        .tip = {}});
    }
    copy_->setEnabled(!rows.empty());
    rows_->ShowRows({tr("Why"), tr("What stands there")}, std::move(rows));
    rows_->FitColumns(narrowestColumn, widestColumn);
    return notable;
}

void ImportLeftOutPage::CopyAll() {
    QGuiApplication::clipboard()->setText(rows_->AllAsText());
    Q_EMIT copied(rows_->RowCount());
}
