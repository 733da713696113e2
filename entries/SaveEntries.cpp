// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/SaveEntries.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/settings.h"
#include "core/text.h"
#include "entries/draw_days.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Widgets.h"

SaveEntries::SaveEntries(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("SaveEntries"), tr("Save lottery entries"), parent),
      text1_(Named(new QLineEdit, QStringLiteral("Text1"))),
      text2_(Named(new QLineEdit, QStringLiteral("Text2"))),
      dtPicker1_(Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                       QStringLiteral("DTPicker1"))),
      command7_(MakeIconButton(QStringLiteral("Command7"), QStringLiteral("document-save"),
                               tr(" Save lottery entries "))),
      command1_(MakeIconButton(QStringLiteral("Command1"), QStringLiteral("dialog-cancel"),
                               tr(" Cancel "))) {
    Build();
    connect(command7_, &QPushButton::clicked, this, [this] { Command7_Click(); });
    connect(command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    command7_->setDefault(true);
    SetCloseButton(command1_);
    SetHelpPage(QStringLiteral("helpplay.html"));
}

void SaveEntries::Build() {
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(4);
    int row = 0;
    const auto addInput = [&](QLabel* label, QWidget* input, QLabel* explanation) {
        Titled(label, input);
        input->setAccessibleDescription(explanation->text());
        grid->addWidget(label, row, 0);
        grid->addWidget(input, row, 1);
        explanation->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        grid->addWidget(explanation, row + 1, 1);
        grid->setRowMinimumHeight(row + 2, 12);
        row += 3;
    };
    addInput(
        MakeLabel(QStringLiteral("Label1"), tr("Lines:")), text1_,
        MakeBody(QStringLiteral("Label3"), tr("Select the number of lottery entries to save.")));
    addInput(MakeLabel(QStringLiteral("LabelPName"), tr("Name:")), text2_,
             MakeBody(QStringLiteral("Label2"),
                      tr("You can associate these lottery entries with a player or syndicate by "
                         "entering a name.")));
    addInput(MakeLabel(QStringLiteral("Label5"), tr("Date:")), dtPicker1_,
             MakeBody(QStringLiteral("Label6"),
                      tr("It is essential that you set the lottery draw date. It is used when "
                         "checking entries.")));

    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addLayout(grid, 1);
    layout->addLayout(BuildActionRow({command7_}, {command1_}));
    setMinimumWidth(440);
}

void SaveEntries::Load() {
    text2_->setText(ToQString(state().Settings(setting::PlayerName)));
    dtPicker1_->SetValue(NextDrawDate(state(), services().region, services().today()));
}

void SaveEntries::SetLineCount(int count) {
    text1_->setText(QString::number(count));
    text1_->selectAll();
}

int SaveEntries::LineCount() const { return LeadingWhole(FromQString(text1_->text())); }

std::string SaveEntries::PlayerName() const { return FromQString(text2_->text()); }

void SaveEntries::Command7_Click() {
    state().Settings(setting::PlayerName) = Trim(PlayerName());
    state().Settings(setting::DrawDate) = MediumDate(dtPicker1_->Value());
    hide();
    QCoreApplication::processEvents();
}

void SaveEntries::Command1_Click() {
    text1_->setText(QStringLiteral("0"));
    hide();
}
