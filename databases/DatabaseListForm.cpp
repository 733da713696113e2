// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DatabaseListForm.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/forms/LotteryList.h"
#include "platform/widgets/ElidingLabel.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

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
    contents_->setText(DatabaseInWords(program(), view().DbaseFiles(chosen)));
}
