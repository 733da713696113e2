// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintSelection.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Widgets.h"

PrintSelection::PrintSelection(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("PrintSelection"), tr("Print media selection"), parent),
      lotteryForms_(Named(new QRadioButton(tr("Lottery forms")), QStringLiteral("Option1"))) {
    auto* explanation =
        MakeBody(QStringLiteral("Label1"),
                 tr("Print on standard paper (eg A4), or on lottery forms/entry slips? Printing on "
                    "lottery forms requires a template."));
    auto* standardPaper = Named(new QRadioButton(tr("Standard paper")), QStringLiteral("Option2"));
    standardPaper->setChecked(true);
    QPushButton* print = MakeCommandButton(QStringLiteral("Command6"), Command::Print,
                                           tr("Print out the lottery entries"));
    print->setDefault(true);
    connect(print, &QPushButton::clicked, this, [this] { accept(); });
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(explanation);
    layout->addSpacing(4);
    layout->addWidget(lotteryForms_);
    layout->addWidget(standardPaper);
    layout->addSpacing(8);
    layout->addStretch(1);
    layout->addLayout(BuildActionRow({print}, {}));
    setMinimumWidth(420);
    TabInReadingOrder();
}

bool PrintSelection::OnLotteryForms() const { return lotteryForms_->isChecked(); }
