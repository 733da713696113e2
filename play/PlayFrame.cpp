// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PlayFrame.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/draw_database.h"
#include "core/filters.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/Hourglass.h"
#include "platform/forms/InputDropper.h"
#include "platform/forms/LinesGrid.h"
#include "platform/forms/LotteryList.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

PlayFrame::PlayFrame(Program& program, const PlayFormText& text, const PlayButtonNames& names,
                     int mostLines, QWidget* parent)
    : Form(program, text.name, text.caption, parent),
      label2_(MakeBody(QStringLiteral("Label2"), text.body)),
      label7_(MakeTitle(QStringLiteral("Label7"), text.heading)),
      grid_(Named(new Grid(mostLines + 2, 9), QStringLiteral("MSFlexGrid1"))),
      besideList_(new QVBoxLayout),
      column_(new QVBoxLayout),
      foot_(new QVBoxLayout) {
    grid_->SizeColumns();
    grid_->setAccessibleName(tr("Lottery entries"));
    auto* middle = new QHBoxLayout;
    middle->addLayout(BuildInputs(names), 1);
    middle->addSpacing(12);
    middle->addWidget(grid_);

    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(label7_);
    layout->addWidget(label2_);
    layout->addSpacing(4);
    layout->addLayout(middle, 1);
    layout->addLayout(foot_);
    layout->addLayout(BuildActions(names.help));
    SetOpeningSize({sizeHint().width(), 600});
    Connect();
    SetCloseButton(command1_);
    SetHelpPage(QStringLiteral("helpplay.html"));
}

QLayout* PlayFrame::BuildInputs(const PlayButtonNames& names) {
    label1_ = MakeLabel(QStringLiteral("Label1"), tr("Select a lottery:"));
    list1_ = Titled(label1_, Named(new ListBox, QStringLiteral("List1")));
    list1_->setMinimumWidth(240);
    auto* lotteries = new QHBoxLayout;
    lotteries->addWidget(list1_, 1);
    lotteries->addLayout(besideList_);
    auto* column = new QVBoxLayout;
    column->addWidget(label1_);
    column->addLayout(lotteries, 1);
    column->addSpacing(8);
    column->addLayout(column_);
    column->addSpacing(8);
    column->addLayout(BuildFilters(names));
    return column;
}

QLayout* PlayFrame::BuildFilters(const PlayButtonNames& names) {
    QPushButton* oddEven = MakeButton(names.oddEven, tr("Odd/even"));
    QPushButton* highLow = MakeButton(names.highLow, tr("High/low"));
    QPushButton* longRuns = MakeButton(names.longRuns, tr("Long runs"));
    QPushButton* previousDraws = MakeButton(names.previousDraws, tr("Previous draws"));
    ConnectFilter(oddEven, &PruneOddEven);
    ConnectFilter(highLow, &PruneHighLow);
    ConnectFilter(longRuns, &PruneLongRun);
    ConnectFilter(previousDraws, &PruneHistory);
    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabel(names.filtersLabel, tr("Filters")), 0, 0, 1, 2);
    grid->addWidget(oddEven, 1, 0);
    grid->addWidget(highLow, 1, 1);
    grid->addWidget(longRuns, 2, 0);
    grid->addWidget(previousDraws, 2, 1);
    return grid;
}

QLayout* PlayFrame::BuildActions(const QString& helpName) {
    command2_ = MakeIconButton(QStringLiteral("Command2"), QStringLiteral("view-refresh"),
                               tr("Generate another selection of lottery entries"));
    command6_ = MakeIconButton(QStringLiteral("Command6"), QStringLiteral("document-print"),
                               tr("Print out the lottery entries"));
    command7_ = MakeIconButton(QStringLiteral("Command7"), QStringLiteral("document-save"),
                               tr("Save these lottery entries to disk"));
    help_ = MakeButton(helpName, tr(" Help "));
    command1_ =
        MakeIconButton(QStringLiteral("Command1"), QStringLiteral("window-close"), tr(" Close "));
    command2_->setDefault(true);
    command6_->setEnabled(static_cast<bool>(services().printLines));
    return BuildActionRow({command2_, command6_, command7_}, {help_, command1_});
}

void PlayFrame::Connect() {
    connect(list1_, &ListBox::clicked, this, [this] { List1_Click(); });
    connect(command2_, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(command6_, &QPushButton::clicked, this, [this] {
        if (Lets(busyRules_.printAndSaveWait)) services().printLines(this, *grid_);
    });
    connect(command7_, &QPushButton::clicked, this, [this] {
        if (Lets(busyRules_.printAndSaveWait)) services().saveLines(this, *grid_);
    });
    connect(help_, &QPushButton::clicked, this,
            [this] { services().openPage(QStringLiteral("helpplay.html")); });
    connect(command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
}

void PlayFrame::ConnectFilter(QPushButton* button, void (*prune)(State&)) {
    connect(button, &QPushButton::clicked, this, [this, prune] {
        if (!Lets(busyRules_.filtersWait)) return;
        prune(state());
        ShowResult();
    });
}

void PlayFrame::Load() {
    TabInReadingOrder();
    state().Busy = 0;
    Skinning(QStringLiteral("SkinPlay.jpg"), SkinnedLabels());
    ListDatabases(program(), *list1_);
    ChooseFirstLottery(*list1_);
}

SkinLabels PlayFrame::SkinnedLabels() const {
    return {.title = {QStringLiteral("Label7")},
            .body = {QStringLiteral("Label2")},
            .small = {QStringLiteral("Label1")},
            .status = statusLabels_};
}

bool PlayFrame::Lets(bool waits) const { return !waits || state().Busy == 0; }

void PlayFrame::ShowResult() { ShowLines(state(), *grid_); }

void PlayFrame::EmptyGrid() { WipeLines(*grid_, 1); }

void PlayFrame::DropWaitingInput() { InputDropper::Run(*command1_); }

void PlayFrame::List1_Click() {
    if (state().Busy != 0) return;
    {
        const Hourglass hourglass;
        state().Busy = -1;
        ClearLinesGrid(*grid_);
        LoadDatabase(state(), folder(), static_cast<std::int16_t>(list1_->Index()));
        DatabaseLoaded();
    }
    state().Busy = 0;
    LotteryChosen();
}

void PlayFrame::Command2_Click() {
    if (!Lets(busyRules_.generateWaits) || !MayGenerate()) return;
    if (!busyRules_.generateSets) {
        Generate();
        return;
    }
    {
        const Hourglass hourglass;
        state().Busy = -1;
        Generate();
    }
    state().Busy = 0;
    if (closeWanted_) Unload();
}

void PlayFrame::Command1_Click() {
    const bool busy = state().Busy != 0;
    if (busy && busyRules_.close == CloseWhileBusy::Ignored) return;
    // A click that waited while a generator ran closes the form as soon as it is through.
    closeWanted_ = busy && busyRules_.close == CloseWhileBusy::Waits;
    if (!closeWanted_) Unload();
}
