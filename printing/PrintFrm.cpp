// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintFrm.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "core/text.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "printing/PrinterInputs.h"

namespace {

constexpr int usualMargin = 10;
constexpr int widestMargin = 100;
constexpr int normalTextSize = 4;
constexpr int boxWidth = 72;

// Kept on purpose: the first two papers are crossed over, so "A4 (210 x 297 mm)" prints on A3.
constexpr std::array<PaperSize, 4> paperOfEntry = {PaperSize::A3, PaperSize::A4, PaperSize::Letter,
                                                   PaperSize::Legal};

QLineEdit* MakeBox(const QString& name) {
    auto* box = Named(new QLineEdit, name);
    box->setFixedWidth(boxWidth);
    return box;
}

}  // namespace

PrintFrm::PrintFrm(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("PrintFrm"), tr("Print"), parent),
      printers_(MakePrinterList()),
      qualities_(MakeQualityList()),
      papers_(MakeOptionList(QStringLiteral("Combo3"),
                             {tr("A4 (210 x 297 mm)"), tr("A3 (297 x 420 mm)"),
                              tr("Letter (8 1/2 x 11 in)"), tr("Legal (8 1/2 x 14 in)")})),
      textSizes_(MakeOptionList(QStringLiteral("Combo4"),
                                {tr("-4"), tr("-3"), tr("-2"), tr("-1"), tr("Normal"), tr("+1"),
                                 tr("+2"), tr("+3"), tr("+4")})),
      margin_(MakeBox(QStringLiteral("Text1"))),
      lines_(MakeBox(QStringLiteral("Text2"))),
      answer_(MakeLabel(QStringLiteral("Label7"), QString(), this)) {
    answer_->hide();
    ResetMargin();
    auto* columns = new QHBoxLayout;
    columns->setSpacing(24);
    columns->addLayout(MakeInputs(), 1);
    columns->addWidget(MakeOrientation(), 0, Qt::AlignTop);
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addLayout(columns, 1);
    layout->addSpacing(8);
    layout->addLayout(MakeActions());
    TabInReadingOrder();
}

QLayout* PrintFrm::MakeInputs() {
    auto* inputs = new QGridLayout;
    inputs->setVerticalSpacing(8);
    int row = 0;
    const auto add = [&](QLabel* title, QWidget* input, QWidget* unit = nullptr) {
        auto* line = new QHBoxLayout;
        line->setSpacing(8);
        line->addWidget(Titled(title, input));
        if (unit != nullptr) line->addWidget(unit);
        if (qobject_cast<QLineEdit*>(input) != nullptr) line->addStretch(1);
        inputs->addWidget(title, row, 0);
        inputs->addLayout(line, row++, 1);
    };
    add(MakeLabel(QStringLiteral("Label2"), tr("Printer:")), printers_);
    add(MakeLabel(QStringLiteral("Label5"), tr("Print quality:")), qualities_);
    add(MakeLabel(QStringLiteral("Label6"), tr("Paper:")), papers_);
    add(MakeLabel(QStringLiteral("Label8"), tr("Text size:")), textSizes_);
    add(MakeLabel(QStringLiteral("Label1"), tr("Left margin:")), margin_,
        MakeLabel(QStringLiteral("Label3"), tr("mm")));
    add(MakeLabel(QStringLiteral("Label4"), tr("Lines to print:")), lines_);
    inputs->setColumnStretch(1, 1);
    inputs->setRowStretch(row, 1);
    return inputs;
}

QGroupBox* PrintFrm::MakeOrientation() {
    auto* frame = Named(new QGroupBox(tr(" Orientation ")), QStringLiteral("Frame1"));
    portrait_ = Named(new QRadioButton(tr("Portrait")), Member(QStringLiteral("Option1"), 0));
    auto* landscape =
        Named(new QRadioButton(tr("Landscape")), Member(QStringLiteral("Option1"), 1));
    portrait_->setChecked(true);
    auto* options = new QVBoxLayout(frame);
    options->addWidget(portrait_);
    options->addWidget(landscape);
    return frame;
}

QLayout* PrintFrm::MakeActions() {
    QPushButton* print =
        WithKeysOf(Command::Print, MakeButton(QStringLiteral("Command6"), tr(" Print ")));
    print->setDefault(true);
    QPushButton* cancel = MakeButton(QStringLiteral("Command1"), tr(" Cancel "));
    connect(print, &QPushButton::clicked, this, [this] { Print(); });
    connect(cancel, &QPushButton::clicked, this, [this] { Cancel(); });
    SetCloseButton(cancel);
    return BuildActionRow({print}, {cancel});
}

void PrintFrm::Load() {
    ListPrinters(services(), *printers_);
    papers_->SetIndex(0);
    textSizes_->SetIndex(normalTextSize);
}

void PrintFrm::ResetMargin() { margin_->setText(QString::number(usualMargin)); }

bool PrintFrm::Ask(QWidget* over, int lines) {
    answer_->setText(QStringLiteral("OK"));
    lines_->setText(QString::number(lines));
    // The form that it is shown over may go before it does.
    setParent(over, windowFlags());
    exec();
    setParent(nullptr, windowFlags());
    return answer_->text() == QLatin1String("OK");
}

ReportChoice PrintFrm::Choice() const {
    return {.lines = NumberIn(*lines_),
            .leftMargin = NumberIn(*margin_),
            .textSize = LeadingWhole(FromQString(textSizes_->currentText()))};
}

PrintOptions PrintFrm::Options() const {
    return {.quality = QualityOf(*qualities_),
            .orientation = portrait_->isChecked() ? Orientation::Portrait : Orientation::Landscape,
            .paper = paperOfEntry.at(static_cast<std::size_t>(papers_->Index()))};
}

void PrintFrm::Print() {
    if (NumberIn(*lines_) < 1) {
        services().messages.Show(this, {.title = tr("Error"),
                                        .text = tr("Please set number of lines to print.    "),
                                        .sign = Sign::Question});
        return;
    }
    if (NumberIn(*margin_) < 0) margin_->setText(QStringLiteral("0"));
    if (NumberIn(*margin_) > widestMargin) margin_->setText(QString::number(widestMargin));
    ChoosePrinter(services(), *printers_);
    QCoreApplication::processEvents();
    hide();
}

void PrintFrm::Cancel() {
    answer_->setText(QStringLiteral("Cancel"));
    hide();
}
