// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PDIYWheels.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/widgets/Widgets.h"
#include "wheels/RingLists.h"

namespace {

constexpr int mostLines = 20;
constexpr BoxGrouping grouping = {.boxesInGroup = 1, .groupsInRow = 5};

PlayFormText Words() {
    // Kept on purpose: the quotation mark before "Random input order" has no second one.
    return {.name = QStringLiteral("PDIYWheels"),
            .caption = PDIYWheels::tr("Create-a-Wheel"),
            .heading = PDIYWheels::tr("Create-a-wheel"),
            .body = PDIYWheels::tr(
                "Create your own wheels by selecting how many numbers to wheel and then by "
                "choosing the wheel interval. Click the 'Random selection' button if you want the "
                "program to pick your numbers. Click 'Random input order to place the numbers you "
                "enter in a random order.")};
}

}  // namespace

PDIYWheels::PDIYWheels(Program& program, QWidget* parent)
    : WheelFrame(program, Words(), WheelControlNames(QStringLiteral("Command4")), grouping,
                 mostLines, parent),
      lists_(new RingLists(MakeLabel(QStringLiteral("Label9"), tr("Numbers to wheel:")),
                           MakeLabel(QStringLiteral("Label5"), tr("Interval:")))) {
    BesideList().addWidget(lists_);
    BesideList().addStretch(1);
    Column().insertWidget(0, MakeLabel(QStringLiteral("Label10"), tr("Your numbers:")));
    connect(lists_, &RingLists::numbersChosen, this, [this] { SizeChosen(); });
    RandomSelection().setToolTip(tr(" Pick some numbers for me "));
    RandomOrder().setToolTip(tr(" Mix up the order of the numbers "));
}

void PDIYWheels::SizeChosen() { UseBoxes(lists_->Choice().numbers); }

wheels::Outcome PDIYWheels::MakeWheel(wheels::Boxes& boxes) {
    return own_wheels::Generate(state(), services().random, lists_->Choice(), boxes);
}
