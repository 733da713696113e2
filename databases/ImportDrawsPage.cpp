// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/ImportDrawsPage.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "databases/ImportWords.h"
#include "databases/RowTable.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int factsWidth = 264;
constexpr int narrowestColumn = 5;
constexpr int widestColumn = 20;

/// The headings of draws that have so many numbers, and an extra ball or none.
QStringList HeadingsOf(int picks, const ImportRules& rules) {
    QStringList headings = {ImportDrawsPage::tr("Date")};
    for (int number = 1; number <= picks; ++number) {
        headings += ImportDrawsPage::tr("Num%1").arg(number);
    }
    if (rules.hasBonus) headings += ImportDrawsPage::tr("Bonus");
    if (rules.highestExtra > 0) headings += ImportDrawsPage::tr("Extra");
    return headings;
}

ShownRow RowOf(const TickedDraw& offered, int picks, bool extra) {
    const ImportedDraw& draw = offered.draw;
    ShownRow row{.cells = {DayInWords(draw.date)},
                 .number = draw.line,
                 .key = draw.row,
                 .faint = false,
                 .ticked = offered.ticked,
                 .tip = {}};
    for (int place = 0; place < picks; ++place) {
        const int number = draw.numbers[static_cast<std::size_t>(place)];
        row.cells += number > 0 ? QString::number(number) : QString();
    }
    if (extra) row.cells += draw.extra > 0 ? QString::number(draw.extra) : QString();
    return row;
}

}  // namespace

ImportDrawsPage::ImportDrawsPage(QWidget* parent) : QWidget(parent) {
    auto* title = MakeLabel(QStringLiteral("DrawsTitle"),
                            tr("The draws as they will be stored; take the tick from a row to "
                               "leave it out:"));
    draws_ = Titled(title, Named(new RowTable, QStringLiteral("Draws")));
    draws_->setMinimumHeight(120);
    connect(draws_, &RowTable::ticked, this, [this](const std::vector<int>& rows, bool on) {
        std::vector<std::size_t> keys;
        for (const int row : rows) keys.push_back(draws_->Row(row).key);
        Q_EMIT ticked(keys, on);
    });
    auto* table = new QVBoxLayout;
    table->setSpacing(4);
    table->addWidget(title);
    table->addWidget(draws_, 1);
    auto* columns = new QHBoxLayout(this);
    columns->addLayout(table, 1);
    columns->addSpacing(8);
    columns->addLayout(MakeFacts());
}

QLayout* ImportDrawsPage::MakeFacts() {
    MakeEras();
    remarks_ = MakeBody(QStringLiteral("Remarks"), QString());
    remarks_->setFixedWidth(factsWidth);
    remarks_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* column = new QVBoxLayout;
    column->addWidget(eraBox_);
    column->addWidget(remarks_);
    column->addStretch(1);
    return column;
}

void ImportDrawsPage::MakeEras() {
    eraBox_ = Named(new QGroupBox(tr("The rules changed")), QStringLiteral("Eras"));
    eraBox_->setFixedWidth(factsWidth);
    change_ = MakeBody(QStringLiteral("EraChange"), QString());
    eras_ = new OptionGroup(this);
    auto* column = new QVBoxLayout(eraBox_);
    column->addWidget(change_);
    column->addWidget(eras_->Add(QStringLiteral("EraAll"), QString()));
    column->addWidget(eras_->Add(QStringLiteral("EraNewest"), QString()));
    column->addWidget(eras_->Add(QStringLiteral("EraEach"), tr("One lottery for each")));
    connect(eras_, &OptionGroup::clicked, this, [this] {
        if (!showing_) Q_EMIT erasChosen(static_cast<EraChoice>(eras_->Index()));
    });
    eraBox_->hide();
}

void ImportDrawsPage::Show(const ImportSession& session) {
    showing_ = true;
    ShowDraws(session);
    ShowEras(session);
    const QString remarks = RemarksOf(session);
    remarks_->setText(remarks);
    remarks_->setVisible(!remarks.isEmpty());
    showing_ = false;
}

void ImportDrawsPage::ShowDraws(const ImportSession& session) {
    const std::vector<TickedDraw> offered = session.Offered();
    // The columns stay where all ticks are taken away.
    std::vector<ImportedDraw> draws;
    for (const TickedDraw& draw : offered) draws.push_back(draw.draw);
    const ImportRules rules = RulesOf(draws, session.Mapping().extraFromSameDrum);
    const bool extra = rules.hasBonus || rules.highestExtra > 0;
    std::vector<ShownRow> rows;
    rows.reserve(offered.size());
    for (const TickedDraw& draw : offered) rows.push_back(RowOf(draw, rules.picks, extra));
    draws_->SetExtraColumn(extra ? rules.picks + 1 : -1);
    draws_->ShowRows(HeadingsOf(rules.picks, rules), std::move(rows));
    draws_->FitColumns(narrowestColumn, widestColumn);
    draws_->StretchColumnsFrom(1);
}

void ImportDrawsPage::ShowEras(const ImportSession& session) {
    const std::vector<ImportEra>& eras = session.Eras();
    eraBox_->setVisible(eras.size() > 1);
    if (eras.size() < 2) return;
    QStringList changes;
    std::size_t draws = 0;
    for (const ImportEra& era : eras) {
        if (!era.change.empty()) changes += ToQString(era.change);
        draws += era.count;
    }
    QString change = changes.join(QStringLiteral(";\n"));
    change.replace(0, 1, change.left(1).toUpper());
    change_->setText(change % tr(". Statistics over such a change mislead."));
    eras_->Option(0).setText(tr("All: %1").arg(DrawsInWords(draws)));
    eras_->Option(1).setText(
        tr("From %1 on: %2").arg(DayInWords(eras.front().from), DrawsInWords(eras.front().count)));
    eras_->Option(static_cast<int>(session.ChosenEras())).setChecked(true);
}

void ImportDrawsPage::OfferEach(bool offered) { eras_->Option(2).setEnabled(offered); }
