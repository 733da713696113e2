// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/ImportReadingPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <set>

#include "databases/ImportWords.h"
#include "databases/RoleHeader.h"
#include "databases/RowTable.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int choicesInARow = 4;
constexpr int narrowestChoice = 10;  // characters
constexpr int fewestPicks = 4;
constexpr std::size_t rowsShown = 200;
constexpr int narrowestColumn = 12;
constexpr int widestColumn = 28;

QStringList Separators() {
    QStringList words;
    for (int separator = 0; separator <= static_cast<int>(ImportSeparator::HtmlCells);
         ++separator) {
        words += ToQString(SeparatorInWords(static_cast<ImportSeparator>(separator)));
    }
    return words;
}

/// The rows of the table that give no draw.
std::set<std::size_t> RowsLeftOut(const ImportedDraws& draws) {
    std::set<std::size_t> rows;
    for (const LeftOutRow& row : draws.leftOut) rows.insert(row.row);
    return rows;
}

}  // namespace

ImportReadingPage::ImportReadingPage(QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setSpacing(6);
    column->addLayout(MakeChoices());
    notes_ = MakeBody(QStringLiteral("Understood"), QString());
    column->addWidget(notes_);
    auto* title = MakeLabel(QStringLiteral("PreviewTitle"),
                            tr("The rows as they came; above each column, what it is:"));
    rows_ = Titled(title, Named(new RowTable, QStringLiteral("Preview")));
    header_ = new RoleHeader(rows_);
    rows_->setHorizontalHeader(header_);
    rows_->setMinimumHeight(120);
    column->addWidget(title);
    column->addWidget(rows_, 1);
    ConnectChoices();
}

QComboBox* ImportReadingPage::AddChoice(const QString& name, const QString& title,
                                        const QStringList& choices) {
    auto* label = MakeLabel(name % QStringLiteral("Title"), title);
    auto* box = Titled(label, Named(new QComboBox, name));
    box->addItems(choices);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(narrowestChoice);
    choices_.push_back({label, box});
    return box;
}

QLayout* ImportReadingPage::MakeChoices() {
    dateOrder_ = AddChoice(QStringLiteral("DateOrder"), tr("Dates have"),
                           {tr("the day first"), tr("the month first"), tr("the year first")});
    drum_ = AddChoice(QStringLiteral("Drum"), tr("The extra ball is"),
                      {tr("from its own drum"), tr("from the main numbers")});
    separator_ = AddChoice(QStringLiteral("Separator"), tr("Columns are parted by"), Separators());
    encoding_ = AddChoice(QStringLiteral("Encoding"), tr("Characters are"),
                          {tr("UTF-8"), tr("UTF-16, low byte first"), tr("UTF-16, high byte first"),
                           tr("Windows-1252")});
    picks_ = AddChoice(
        QStringLiteral("Picks"), tr("Main numbers of a draw"),
        {QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6"), QStringLiteral("7")});
    keptExtra_ = AddChoice(QStringLiteral("KeptExtra"), tr("Of the extra balls kept is"),
                           {tr("the first"), tr("the second"), tr("the third")});
    sameDate_ = AddChoice(QStringLiteral("SameDate"), tr("Of several draws of a day"),
                          {tr("one is taken"), tr("all are taken")});
    product_ = AddChoice(QStringLiteral("Product"), tr("The game is"), {});
    heading_ =
        Named(new QCheckBox(tr("The first row names the columns")), QStringLiteral("Heading"));

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(2);
    for (int i = 0; i < static_cast<int>(choices_.size()); ++i) {
        const Choice& choice = choices_[static_cast<std::size_t>(i)];
        const int row = i / choicesInARow * 2;
        grid->addWidget(choice.title, row, i % choicesInARow);
        grid->addWidget(choice.box, row + 1, i % choicesInARow);
        grid->setColumnStretch(i % choicesInARow, 1);
    }
    grid->addWidget(heading_, 4, 0, 1, choicesInARow);
    return grid;
}

void ImportReadingPage::ConnectChoices() {
    connect(encoding_, &QComboBox::activated, this,
            [this](int choice) { Q_EMIT encodingChosen(static_cast<ImportEncoding>(choice)); });
    connect(separator_, &QComboBox::activated, this,
            [this](int choice) { Q_EMIT separatorChosen(static_cast<ImportSeparator>(choice)); });
    connect(header_, &RoleHeader::chosen, this, [this](int column, int choice) {
        Q_EMIT roleChosen(static_cast<std::size_t>(column), static_cast<ColumnRole>(choice));
    });
    for (const QComboBox* box : {dateOrder_, picks_, keptExtra_, drum_, sameDate_, product_}) {
        connect(box, &QComboBox::activated, this, [this] { ChangeMapping(); });
    }
    connect(heading_, &QCheckBox::clicked, this, [this] { ChangeMapping(); });
}

void ImportReadingPage::ChangeMapping() {
    ImportMapping mapping = mapping_;
    mapping.dateOrder = static_cast<Region::Order>(dateOrder_->currentIndex());
    mapping.picks = picks_->currentIndex() + fewestPicks;
    mapping.extraFromSameDrum = drum_->currentIndex() == 1;
    mapping.sameDate = static_cast<SameDate>(sameDate_->currentIndex());
    mapping.keptExtra = keptExtra_->currentIndex() + 1;
    mapping.hasHeading = heading_->isChecked();
    if (mapping.productColumn >= 0) mapping.product = FromQString(product_->currentText());
    Q_EMIT mappingChosen(mapping);
}

void ImportReadingPage::Show(const ImportSession& session) {
    mapping_ = session.Mapping();
    ShowChoices(session);
    ShowNotes(session);
    ShowTable(session);
}

void ImportReadingPage::ShowChoices(const ImportSession& session) {
    encoding_->setCurrentIndex(static_cast<int>(session.Encoding()));
    separator_->setCurrentIndex(static_cast<int>(mapping_.separator));
    dateOrder_->setCurrentIndex(static_cast<int>(mapping_.dateOrder));
    picks_->setCurrentIndex(mapping_.picks - fewestPicks);
    keptExtra_->setCurrentIndex(mapping_.keptExtra - 1);
    drum_->setCurrentIndex(mapping_.extraFromSameDrum ? 1 : 0);
    sameDate_->setCurrentIndex(static_cast<int>(mapping_.sameDate));
    heading_->setChecked(mapping_.hasHeading);
    const bool inOneField = !ColumnsOf(mapping_, ColumnRole::Numbers).empty();
    Offer(picks_, inOneField);
    Offer(keptExtra_, inOneField);
    Offer(drum_, inOneField || !ColumnsOf(mapping_, ColumnRole::Extra).empty());
    ShowProducts(session.Products());
}

void ImportReadingPage::ShowProducts(const std::vector<std::string>& products) {
    product_->clear();
    for (const std::string& product : products) product_->addItem(ToQString(product));
    product_->setCurrentText(ToQString(mapping_.product));
    Offer(product_, products.size() > 1);
}

void ImportReadingPage::Offer(const QComboBox* box, bool offered) {
    const auto choice = std::ranges::find(choices_, box, &Choice::box);
    choice->title->setEnabled(offered);
    choice->box->setEnabled(offered);
}

void ImportReadingPage::ShowNotes(const ImportSession& session) {
    QStringList notes;
    if (!session.Missing().empty()) notes += ToQString(session.Missing());
    if (session.IsRemembered()) {
        notes += tr("The columns are those of the last time.");
    } else {
        for (const ImportNote& note : session.Proposal().notes) {
            const QString text = ToQString(note.text);
            notes += note.guess ? tr("A guess: %1").arg(text) : text;
        }
    }
    notes_->setText(notes.join(QLatin1Char(' ')));
    notes_->setVisible(!notes.isEmpty());
}

void ImportReadingPage::ShowTable(const ImportSession& session) {
    const ImportTable& table = session.Table();
    const std::set<std::size_t> leftOut = RowsLeftOut(session.Taken());
    QStringList headings;
    std::vector<int> roles;
    std::vector<bool> faint;
    for (std::size_t column = 0; column < table.Columns(); ++column) {
        const std::vector<std::string>& named = session.Headings();
        const bool hasName = column < named.size() && !named[column].empty();
        headings += hasName ? ToQString(named[column]) : tr("Column %1").arg(column + 1);
        const ColumnRole role = RoleOf(mapping_, column);
        roles.push_back(static_cast<int>(role));
        faint.push_back(role == ColumnRole::Nothing);
    }
    std::vector<ShownRow> rows;
    for (std::size_t row = 0; row < std::min(table.Rows(), rowsShown); ++row) {
        ShownRow& shown = rows.emplace_back();
        shown.number = table.Line(row);
        shown.faint = leftOut.contains(row);
        for (std::size_t column = 0; column < table.Columns(); ++column) {
            shown.cells += ToQString(table.Cell(row, column));
        }
    }
    rows_->SetFaintColumns(faint);
    rows_->ShowRows(headings, std::move(rows));
    rows_->FitColumns(narrowestColumn, widestColumn);
    header_->SetRoles(RoleWords(), roles);
}
