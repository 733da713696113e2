// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DatabaseListForm.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/text.h"
#include "databases/database_summary.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/LotteryList.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/ElidingLabel.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

namespace {

QString DrawsInWords(int draws) {
    if (draws == 0) return DatabaseListForm::tr("no draws");
    if (draws == 1) return DatabaseListForm::tr("1 draw");
    return DatabaseListForm::tr("%1 draws").arg(ToQString(GroupedDigits(draws)));
}

QString Period(Date oldest, Date newest) {
    const QString end = ToQString(DrawDate(newest));
    if (oldest == newest) return end;
    return DatabaseListForm::tr("%1 to %2").arg(ToQString(DrawDate(oldest)), end);
}

}  // namespace

DatabaseListForm::DatabaseListForm(Program& program, const QString& name, const QString& caption,
                                   QPushButton* act, const QString& closeCaption, QWidget* parent)
    : Form(program, name, caption, parent),
      lotteries_(Named(new ListBox, QStringLiteral("List1"))),
      contents_(Named(new ElidingLabel, QStringLiteral("ChosenDatabase"))) {
    auto* title = MakeLabel(QStringLiteral("Label3"), tr("Select a lottery:"));
    Titled(title, lotteries_);
    auto* close = MakeButton(QStringLiteral("Command1"), closeCaption);
    SetCloseButton(close);

    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(title);
    layout->addWidget(lotteries_, 1);
    layout->addWidget(contents_);
    layout->addLayout(BuildActionRow({act}, {close}));
    SetOpeningSize({560, 360});

    connect(lotteries_, &ListBox::itemSelectionChanged, this, [this] {
        DescribeChosen();
        ChoiceChanged();
    });
    connect(lotteries_, &ListBox::doubleClicked, this, [this] { Act(); });
    connect(act, &QPushButton::clicked, this, [this] { Act(); });
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
}

void DatabaseListForm::Load() { ListDatabases(program(), *lotteries_); }

void DatabaseListForm::DescribeChosen() {
    const int chosen = lotteries_->Index();
    if (chosen < 0) {
        contents_->clear();
        return;
    }
    const std::string& file = view().DbaseFiles(chosen);
    const DatabaseSummary summary =
        SummaryOf(folder(), file, {.region = services().region, .today = services().today()});
    QStringList words = {ToQString(summary.lottery), ToQString(file), DrawsInWords(summary.draws)};
    if (summary.oldest && summary.newest) words += Period(*summary.oldest, *summary.newest);
    contents_->setText(words.join(QStringLiteral(", ")));
}
