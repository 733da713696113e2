// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of DbaseUpdateW and where they stand.
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "databases/DbaseUpdateW.h"
#include "platform/forms/FormLayout.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/Widgets.h"

DbaseUpdateW::DbaseUpdateW(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("DbaseUpdateW"), tr("Update lottery databases"), parent) {
    MakeControls();
    MakeButtons();
    auto* columns = new QHBoxLayout;
    columns->addLayout(BuildLotteries(), 2);
    columns->addSpacing(24);
    columns->addLayout(BuildDraw(), 3);
    LayOutForm(this, label5_, label11_, columns,
               BuildActionRow({command1_, command2_}, {cancelButton_}));
    TabInReadingOrder();
    SetCloseButton(cancelButton_);
    resize(760, 420);
}

void DbaseUpdateW::MakeControls() {
    label5_ = MakeTitle(QStringLiteral("Label5"), tr("Update lottery draws"));
    label11_ = MakeBody(QStringLiteral("Label11"),
                        tr("Draw results are stored by date and it is very important to set it "
                           "correctly. You can enter a draw for any date and it will be inserted "
                           "in the right place."));
    label8_ = MakeLabel(QStringLiteral("Label8"), tr("Select Lottery:"));
    list1_ = Titled(label8_, Named(new ListBox, QStringLiteral("List1")));
    label4_ = MakeLabel(QStringLiteral("Label4"), tr("Select Date:"));
    dtPicker1_ = Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                       QStringLiteral("DTPicker1"));
    Titled(label4_, dtPicker1_);
    label6_ = MakeLabel(QStringLiteral("Label6"), tr("Enter lottery draw result:"));
    label7_ = MakeLabel(QStringLiteral("Label7"), QString());
    label13_ = MakeLabel(QStringLiteral("Label13"), QString());
    text1_ = MakeDrawBoxes(0);
    connect(list1_, &ListBox::clicked, this, [this] { List1_Click(); });
}

void DbaseUpdateW::MakeButtons() {
    command1_ = MakeButton(QStringLiteral("Command1"), tr(" Save lottery draw result "));
    command1_->setDefault(true);
    command2_ = MakeButton(QStringLiteral("Command2"), tr("Go to website"));
    command2_->setToolTip(tr(" Start Intenet Explorer "));
    command2_->setMinimumWidth(112);
    cancelButton_ = MakeButton(QStringLiteral("CancelButton"), tr(" Close "));
    connect(command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(command2_, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(cancelButton_, &QPushButton::clicked, this, [this] { Unload(); });
}

QLayout* DbaseUpdateW::BuildLotteries() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(label8_);
    column->addWidget(list1_, 1);
    return column;
}

QLayout* DbaseUpdateW::BuildDraw() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(label4_);
    auto* date = new QHBoxLayout;
    date->addWidget(dtPicker1_);
    date->addStretch(1);
    column->addLayout(date);
    column->addSpacing(12);
    column->addWidget(label13_);
    column->addSpacing(12);
    column->addLayout(BuildDrawBoxes(label6_, label7_, text1_));
    column->addStretch(1);
    return column;
}
