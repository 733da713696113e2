// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/SaveEntries.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/draw_days.h"
#include "core/settings.h"
#include "core/text.h"
#include "entries/CommaWarning.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Widgets.h"

SaveEntries::SaveEntries(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("SaveEntries"), tr("Save lottery entries"), parent),
      lines_(Named(new QLineEdit, QStringLiteral("Text1"))),
      player_(Named(new QLineEdit, QStringLiteral("Text2"))),
      drawDate_(Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                      QStringLiteral("DTPicker1"))) {
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addLayout(BuildInputs(), 1);
    layout->addLayout(BuildActions());
    setMinimumWidth(440);
}

QLayout* SaveEntries::BuildInputs() {
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
        MakeLabel(QStringLiteral("Label1"), tr("Lines:")), lines_,
        MakeBody(QStringLiteral("Label3"), tr("Select the number of lottery entries to save.")));
    addInput(MakeLabel(QStringLiteral("LabelPName"), tr("Name:")), player_,
             MakeBody(QStringLiteral("Label2"),
                      tr("You can associate these lottery entries with a player or syndicate by "
                         "entering a name.")));
    addInput(MakeLabel(QStringLiteral("Label5"), tr("Date:")), drawDate_,
             MakeBody(QStringLiteral("Label6"),
                      tr("It is essential that you set the lottery draw date. It is used when "
                         "checking entries.")));
    WarnOfCommas(*player_);
    grid->setRowStretch(row, 1);
    return grid;
}

QLayout* SaveEntries::BuildActions() {
    QPushButton* save =
        MakeCommandButton(QStringLiteral("Command7"), Command::Save, tr(" Save lottery entries "));
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    save->setDefault(true);
    QPushButton* cancel =
        MakeCommandButton(QStringLiteral("Command1"), Command::Cancel, tr(" Cancel "));
    connect(cancel, &QPushButton::clicked, this, [this] { Cancel(); });
    SetCloseButton(cancel);
    return BuildActionRow({save}, {cancel});
}

void SaveEntries::Load() {
    player_->setText(ToQString(state().Settings(setting::PlayerName)));
    drawDate_->SetValue(NextDrawDate(state(), services().region, services().today()));
}

void SaveEntries::SetLineCount(int count) {
    lines_->setText(QString::number(count));
    lines_->selectAll();
}

int SaveEntries::LineCount() const { return LeadingWhole(FromQString(lines_->text())); }

std::string SaveEntries::PlayerName() const { return FromQString(player_->text()); }

QString SaveEntries::ShownDrawDate() const { return drawDate_->text(); }

void SaveEntries::Save() {
    state().Settings(setting::PlayerName) = Trim(PlayerName());
    state().Settings(setting::DrawDate) = MediumDate(drawDate_->Value());
    hide();
    QCoreApplication::processEvents();
}

void SaveEntries::Cancel() {
    lines_->setText(QStringLiteral("0"));
    hide();
}
