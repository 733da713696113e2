// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrinterCorrection.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <cmath>

#include "platform/forms/FormLayout.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/Printers.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Widgets.h"
#include "printing/PrinterInputs.h"

namespace {

// What lies beyond is a slip of the key.
constexpr double farthest = 50;
constexpr double smallest = 50;
constexpr double largest = 150;

bool IsSane(const PageCorrection& correction) {
    const auto sane = [](double move, double scale) {
        return std::abs(move) <= farthest && scale >= smallest && scale <= largest;
    };
    return sane(correction.moveAcross, correction.scaleAcross) &&
           sane(correction.moveDown, correction.scaleDown);
}

}  // namespace

PrinterCorrection::PrinterCorrection(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("PrinterCorrection"), tr("Adjust printer"), parent) {
    title_ = MakeTitle(QStringLiteral("FormTitle"), QString());
    auto* explanation = MakeBody(
        QStringLiteral("Explanation"),
        tr("If all marks of a test print are off in the same way, this printer feeds the paper "
           "a little off. Slips and test prints are moved and scaled by what stands here; "
           "the template stays right for other printers."));
    explanation->setMinimumWidth(380);
    LayOutForm(this, title_, explanation, MakeBoxes(), MakeActions());
    TabInReadingOrder();
}

void PrinterCorrection::Load() {
    if (services().printers != nullptr) ShowPrinter(services().printers->Current());
}

void PrinterCorrection::ShowPrinter(const QString& printer) {
    printer_ = printer;
    title_->setText(printer);
    Show(services().printers->CorrectionOf(printer));
}

FilteredBox* PrinterCorrection::AddBox(QGridLayout& boxes, int row, const QString& name,
                                       const QString& title, const QString& unit) {
    auto* label = MakeLabel(name % QLatin1String("Title"), title);
    auto* box = Titled(label, Named(new FilteredBox, name));
    box->SetTaken(QStringLiteral("0123456789.-"));
    box->SetReplaced(QLatin1Char(','), QLatin1Char('.'));
    box->setFixedWidth(72);
    boxes.addWidget(label, row, 0);
    boxes.addWidget(box, row, 1);
    boxes.addWidget(MakeLabel(name % QLatin1String("Unit"), unit), row, 2);
    return box;
}

QLayout* PrinterCorrection::MakeBoxes() {
    auto* boxes = new QGridLayout;
    boxes->setVerticalSpacing(8);
    moveAcross_ = AddBox(*boxes, 0, QStringLiteral("MoveAcross"), tr("Move to the right:"),
                         tr("mm (to the left: -)"));
    moveDown_ = AddBox(*boxes, 1, QStringLiteral("MoveDown"), tr("Move down:"), tr("mm (up: -)"));
    scaleAcross_ = AddBox(*boxes, 2, QStringLiteral("ScaleAcross"), tr("Scale across:"),
                          tr("% (100: as it is)"));
    scaleDown_ =
        AddBox(*boxes, 3, QStringLiteral("ScaleDown"), tr("Scale down:"), tr("% (100: as it is)"));
    boxes->setColumnStretch(2, 1);
    boxes->setRowStretch(4, 1);
    return boxes;
}

QLayout* PrinterCorrection::MakeActions() {
    auto* keep = MakeButton(QStringLiteral("OKButton"), tr("OK"));
    keep->setDefault(true);
    auto* none = MakeButton(QStringLiteral("NoCorrection"), tr("No correction"));
    auto* cancel = MakeButton(QStringLiteral("CancelButton"), tr("Cancel"));
    SetCloseButton(cancel);
    connect(keep, &QPushButton::clicked, this, [this] { Keep(); });
    connect(none, &QPushButton::clicked, this, [this] { Show({}); });
    connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
    return BuildActionRow({keep, none}, {cancel});
}

void PrinterCorrection::Show(const PageCorrection& correction) {
    moveAcross_->setText(QString::number(correction.moveAcross));
    moveDown_->setText(QString::number(correction.moveDown));
    scaleAcross_->setText(QString::number(correction.scaleAcross));
    scaleDown_->setText(QString::number(correction.scaleDown));
}

void PrinterCorrection::Keep() {
    const PageCorrection correction{.moveAcross = NumberIn(*moveAcross_),
                                    .moveDown = NumberIn(*moveDown_),
                                    .scaleAcross = NumberIn(*scaleAcross_),
                                    .scaleDown = NumberIn(*scaleDown_)};
    if (!IsSane(correction)) {
        services().messages.Show(
            this, {.title = tr("Error"),
                   .text = tr("Please move by at most 50 mm and scale from 50 to 150 %.    "),
                   .sign = Sign::Exclamation});
        return;
    }
    services().printers->SetCorrection(printer_, correction);
    Unload();
}
