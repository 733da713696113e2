// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PlayFrame.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/draw_database.h"
#include "core/filters.h"
#include "core/lines.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/Hourglass.h"
#include "platform/forms/InputDropper.h"
#include "platform/forms/LinesGrid.h"
#include "platform/forms/LotteryList.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

namespace {

// The headings above the lines and the empty row behind them.
constexpr int rowsAroundLines = 2;

constexpr int widestInput = 320;
constexpr int fewestLotteries = 4;  // in view
constexpr int openingHeight = 640;

/// Rows of a list have some air around their letters.
int HeightOfRows(const ListBox& list, int count) {
    constexpr int air = 8;
    return count * (list.fontMetrics().height() + air) + 2 * list.frameWidth();
}

/// The inputs no wider than others, at the left of what room there is.
QLayout* AtMostWide(QLayout* inputs) {
    auto* box = new QWidget;
    inputs->setContentsMargins(0, 0, 0, 0);
    box->setLayout(inputs);
    box->setMaximumWidth(widestInput);
    auto* row = new QHBoxLayout;
    row->addWidget(box, 1);
    row->addStretch();
    return row;
}

/// Such as "1 line taken out, 29 left".
QString WhatWasTakenOut(int before, int left) {
    const int taken = before - left;
    if (before == 0) return PlayFrame::tr("There are no lines to filter");
    if (taken == 0) return PlayFrame::tr("No line taken out, %1 left").arg(left);
    const QString rest =
        left == 0 ? PlayFrame::tr("none left") : PlayFrame::tr("%1 left").arg(left);
    return (taken == 1 ? PlayFrame::tr("1 line taken out, ")
                       : PlayFrame::tr("%1 lines taken out, ").arg(taken)) %
           rest;
}

}  // namespace

PlayControlNames PlayControlNames::FromCommand8() {
    PlayControlNames names;
    names.oddEven = QStringLiteral("Command8");
    names.highLow = QStringLiteral("Command9");
    names.longRuns = QStringLiteral("Command10");
    names.previousDraws = QStringLiteral("Command11");
    names.help = QStringLiteral("Command4");
    return names;
}

PlayFrame::PlayFrame(Program& program, const PlayFormText& text, const PlayControlNames& names,
                     int mostLines, QWidget* parent)
    : Form(program, text.name, text.caption, parent),
      heading_(MakeTitle(QStringLiteral("Label7"), text.heading)),
      body_(MakeBody(QStringLiteral("Label2"), text.body)),
      lotteries_(Named(new ListBox, QStringLiteral("List1"))),
      grid_(Named(new Grid(mostLines + rowsAroundLines, 9), QStringLiteral("MSFlexGrid1"))),
      besideList_(new QVBoxLayout),
      column_(new QVBoxLayout),
      columnAndFilters_(new QBoxLayout(QBoxLayout::TopToBottom)),
      foot_(new QVBoxLayout) {
    grid_->SizeColumns();
    grid_->setAccessibleName(tr("Lottery entries"));
    auto* middle = new QHBoxLayout;
    middle->addLayout(BuildInputs(text, names));
    middle->addSpacing(12);
    middle->addWidget(grid_);
    middle->addStretch(1);

    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(heading_);
    layout->addWidget(body_);
    layout->addSpacing(4);
    layout->addLayout(middle, 1);
    layout->addLayout(foot_);
    layout->addLayout(BuildActions(names));
    SetOpeningSize({sizeHint().width(), openingHeight});
    SetHelpPage(QStringLiteral("helpplay.html"));
}

QLayout* PlayFrame::BuildInputs(const PlayFormText& text, const PlayControlNames& names) {
    QLabel* title = MakeLabel(names.lotteries, tr("Select a lottery:"));
    Titled(title, lotteries_)->setMinimumWidth(240);
    lotteries_->setMaximumWidth(widestInput);
    lotteries_->setMinimumHeight(HeightOfRows(*lotteries_, fewestLotteries));
    lotteries_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    connect(lotteries_, &ListBox::clicked, this, [this] { ChooseLottery(); });
    auto* lotteries = new QGridLayout;
    lotteries->addWidget(lotteries_, 0, 0);
    lotteries->addLayout(besideList_, 0, 1);
    lotteries->setColumnStretch(0, 1);
    // Where the list is as wide as it may be, the rest stays free beside it.
    lotteries->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, 2);
    auto* column = new QVBoxLayout;
    column->addWidget(title);
    column->addLayout(lotteries, 1);
    column->addSpacing(8);
    auto* inputs = new QVBoxLayout;
    inputs->addLayout(column_);
    inputs->addLayout(BuildGenerate(text));
    columnAndFilters_->addLayout(inputs);
    columnAndFilters_->addSpacing(8);
    if (!names.filters.isEmpty()) columnAndFilters_->addLayout(AtMostWide(BuildFilters(names)));
    column->addLayout(columnAndFilters_);
    return column;
}

QLayout* PlayFrame::BuildGenerate(const PlayFormText& text) {
    const QString usualTip = tr("Generate another selection of lottery entries");
    generate_ = MakeCommandButton(QStringLiteral("Command2"), Command::Generate,
                                  text.generateTip.isEmpty() ? usualTip : text.generateTip);
    generate_->setDefault(true);
    connect(generate_, &QPushButton::clicked, this, [this] { ClickGenerate(); });
    auto* row = new QVBoxLayout;
    row->addWidget(generate_);
    return AtMostWide(row);
}

QLayout* PlayFrame::BuildFilters(const PlayControlNames& names) {
    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabel(names.filters, tr("Filters")), 0, 0, 1, 2);
    grid->addWidget(BuildFilter(names.oddEven, tr("Odd/even"), &PruneOddEven), 1, 0);
    grid->addWidget(BuildFilter(names.highLow, tr("High/low"), &PruneHighLow), 1, 1);
    grid->addWidget(BuildFilter(names.longRuns, tr("Long runs"), &PruneLongRun), 2, 0);
    grid->addWidget(BuildFilter(names.previousDraws, tr("Previous draws"), &PruneHistory), 2, 1);
    return grid;
}

QPushButton* PlayFrame::BuildFilter(const QString& name, const QString& caption,
                                    void (*prune)(State&)) {
    QPushButton* filter = MakeButton(name, caption);
    connect(filter, &QPushButton::clicked, this, [this, prune] { Filter(prune); });
    return filter;
}

QLayout* PlayFrame::BuildActions(const PlayControlNames& names) {
    QPushButton* print = MakeCommandButton(QStringLiteral("Command6"), Command::Print,
                                           tr("Print out the lottery entries"));
    QPushButton* save = MakeCommandButton(QStringLiteral("Command7"), Command::Save,
                                          tr("Save these lottery entries to disk"));
    close_ = MakeCommandButton(QStringLiteral("Command1"), Command::Close, tr(" Close "));
    print->setEnabled(static_cast<bool>(services().printLines));
    connect(print, &QPushButton::clicked, this, [this] { PrintLines(); });
    connect(save, &QPushButton::clicked, this, [this] { SaveLines(); });
    connect(close_, &QPushButton::clicked, this, [this] { Close(); });
    SetCloseButton(close_);
    if (names.help.isEmpty()) return BuildActionRow({print, save}, {close_});
    return BuildActionRow({print, save}, {MakeHelpButton(names.help, tr(" Help ")), close_});
}

QPushButton* PlayFrame::MakeHelpButton(const QString& name, const QString& caption) {
    QPushButton* help = MakeButton(name, caption);
    connect(help, &QPushButton::clicked, this, [this] { OpenHelp(); });
    return help;
}

void PlayFrame::Load() {
    TabInReadingOrder();
    state().Busy = 0;
    Skinning(QStringLiteral("SkinPlay.jpg"), SkinnedLabels());
    ListDatabases(program(), *lotteries_);
    ChooseFirstLottery(*lotteries_);
}

SkinLabels PlayFrame::SkinnedLabels() const {
    return {.title = {QStringLiteral("Label7")},
            .body = {QStringLiteral("Label2")},
            .small = {QStringLiteral("Label1")},
            .status = statusLabels_};
}

bool PlayFrame::Lets(bool waits) const { return !waits || state().Busy == 0; }

void PlayFrame::ShowResult() {
    // A filter may show what another form has left in the table.
    const int rows = LineCount(view()) + rowsAroundLines;
    if (rows > grid_->RowCount()) grid_->SetRowCount(rows);
    ShowLines(state(), *grid_);
}

void PlayFrame::EmptyGrid() {
    WipeLines(*grid_, 1);
    ShowUse(view(), *grid_);
}

void PlayFrame::DropWaitingInput() { InputDropper::Run(*close_); }

void PlayFrame::ChooseLottery() {
    if (state().Busy != 0) return;
    {
        const Hourglass hourglass;
        state().Busy = -1;
        ResetInputs();
        ClearLinesGrid(*grid_);
        LoadDatabase(state(), folder(), static_cast<std::int16_t>(lotteries_->Index()));
        ShowUse(view(), *grid_);
        DatabaseLoaded();
    }
    state().Busy = 0;
    LotteryChosen();
}

void PlayFrame::Generate() {
    if (!Lets(busyRules_.generateWaits) || !MayGenerate()) return;
    if (!busyRules_.generateSets) {
        MakeLines();
        return;
    }
    {
        const Hourglass hourglass;
        state().Busy = -1;
        MakeLines();
    }
    state().Busy = 0;
    if (closeWanted_) Unload();
}

void PlayFrame::Filter(void (*prune)(State&)) {
    if (!Lets(busyRules_.filtersWait)) return;
    const int before = LineCount(view());
    Prune(prune);
    const int left = LineCount(view());
    if (left < before) LinesTakenOut();
    Say(WhatWasTakenOut(before, left));
}

void PlayFrame::Prune(void (*prune)(State&)) {
    prune(state());
    ShowResult();
}

void PlayFrame::PrintLines() {
    if (Lets(busyRules_.printAndSaveWait)) services().printLines(this, *grid_);
}

void PlayFrame::SaveLines() {
    if (Lets(busyRules_.printAndSaveWait)) services().saveLines(this, *grid_);
}

void PlayFrame::Close() {
    const bool busy = state().Busy != 0;
    if (busy && busyRules_.close == CloseWhileBusy::Ignored) return;
    // A click that waited while a generator ran closes the form as soon as it is through.
    closeWanted_ = busy && busyRules_.close == CloseWhileBusy::Waits;
    if (!closeWanted_) Unload();
}
