// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintTickets.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/forms/FormLayout.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "printing/PrinterCorrection.h"
#include "printing/PrinterInputs.h"
#include "printing/slip_template.h"

PrintTickets::PrintTickets(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("PrintTickets"), tr("Print tickets"), parent) {
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addLayout(MakePrinter());
    layout->addSpacing(8);
    layout->addLayout(MakeTemplate(), 1);
    layout->addSpacing(8);
    layout->addLayout(MakeActions());
    answer_ = MakeLabel(QStringLiteral("Label7"), QStringLiteral("OK"), this);
    answer_->hide();
    TabInReadingOrder();
    SetHelpPage(QStringLiteral("helpprint.html"));
}

QLayout* PrintTickets::MakePrinter() {
    auto* printerTitle = MakeLabel(QStringLiteral("Label2"), tr("Printer:"));
    printers_ = Titled(printerTitle, MakePrinterList());
    auto* adjust = MakeIconButton(QStringLiteral("AdjustPrinter"), QStringLiteral("transform-move"),
                                  tr("Correct what this printer is off"));
    adjust->setEnabled(services().printers != nullptr);
    connect(adjust, &QPushButton::clicked, this, [this] { AdjustPrinter(); });
    auto* qualityTitle = MakeLabel(QStringLiteral("Label5"), tr("Print quality:"));
    quality_ = Titled(qualityTitle, MakeQualityList());
    auto* linesTitle = MakeLabel(QStringLiteral("Label4"), tr("Lines to print:"));
    lines_ = Titled(linesTitle, Named(new QLineEdit, QStringLiteral("Text2")));
    lines_->setFixedWidth(72);

    auto* printer = new QGridLayout;
    printer->setVerticalSpacing(8);
    printer->addWidget(printerTitle, 0, 0);
    printer->addWidget(printers_, 0, 1);
    printer->addWidget(adjust, 0, 2);
    printer->addWidget(qualityTitle, 1, 0);
    printer->addWidget(quality_, 1, 1);
    printer->addWidget(linesTitle, 2, 0);
    printer->addWidget(lines_, 2, 1);
    printer->setColumnStretch(1, 1);
    return printer;
}

QLayout* PrintTickets::MakeTemplate() {
    auto* title = MakeLabel(QStringLiteral("Label6"), tr("Template:"));
    templates_ = Titled(title, Named(new ListBox, QStringLiteral("List3")));
    templates_->setMinimumHeight(140);
    files_ = Named(new ListBox(this), QStringLiteral("List2"));
    files_->hide();
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(title);
    column->addWidget(templates_, 1);
    return column;
}

QLayout* PrintTickets::MakeActions() {
    auto* print = WithKeysOf(Command::Print, MakeButton(QStringLiteral("Command6"), tr(" Print ")));
    print->setDefault(true);
    print->setEnabled(services().printers != nullptr);
    auto* help = MakeButton(QStringLiteral("Command2"), tr(" Get help "));
    auto* cancel = MakeButton(QStringLiteral("Command1"), tr(" Cancel "));
    SetCloseButton(cancel);
    connect(print, &QPushButton::clicked, this, [this] { Print(); });
    connect(help, &QPushButton::clicked, this, [this] { OpenHelp(); });
    connect(cancel, &QPushButton::clicked, this, [this] { Cancel(); });
    return BuildActionRow({print}, {help, cancel});
}

void PrintTickets::Load() {
    ListPrinters(services(), *printers_);
    for (const SlipTemplateFile& slip : ListSlipTemplates(folder())) {
        templates_->addItem(ToQString(slip.name));
        files_->addItem(ToQString(slip.file));
    }
    if (HasTemplates()) templates_->SetIndex(0);
}

void PrintTickets::SetLines(int count) { lines_->setText(QString::number(count)); }

bool PrintTickets::HasTemplates() const { return templates_->count() > 0; }

void PrintTickets::ChooseTemplate(const std::string& file) {
    int row = 0;
    while (row < files_->count() && FromQString(files_->item(row)->text()) != file) ++row;
    templates_->SetIndex(row);
}

bool PrintTickets::IsOk() const { return answer_->text() == QLatin1String("OK"); }

double PrintTickets::Lines() const { return NumberIn(*lines_); }

std::string PrintTickets::TemplateFile() const {
    return FromQString(files_->item(templates_->Index())->text());
}

PrintQuality PrintTickets::Quality() const { return QualityOf(*quality_); }

void PrintTickets::AdjustPrinter() {
    PrinterCorrection correction(program(), this);
    correction.ShowPrinter(printers_->currentText());
    correction.exec();
}

void PrintTickets::Print() {
    const auto refuse = [this](const QString& title, const QString& text) {
        services().messages.Show(this, {.title = title, .text = text, .sign = Sign::Exclamation});
    };
    if (Lines() < 1) return refuse(tr("Error"), tr("Please set number of lines to print.    "));
    ChoosePrinter(services(), *printers_);
    QCoreApplication::processEvents();
    if (!HasTemplates()) {
        answer_->setText(QStringLiteral("Cancel"));
        refuse(tr("Error!"), tr("No lottery slip templates!    "));
    }
    hide();
}

void PrintTickets::Cancel() {
    answer_->setText(QStringLiteral("Cancel"));
    hide();
}
