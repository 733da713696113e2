// SPDX-License-Identifier: GPL-3.0-or-later
// How `PGuaranteed` is laid out.
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "wheels/GuaranteedPanels.h"
#include "wheels/NumberBoard.h"
#include "wheels/PGuaranteed.h"
#include "wheels/ToldProof.h"
#include "wheels/wheel_forms.h"

namespace {

constexpr int mostLines = 165;

PlayFormText Words() {
    return {.name = QStringLiteral("PGuaranteed"),
            .caption = PGuaranteed::tr("Guaranteed win wheels"),
            .heading = PGuaranteed::tr("Guaranteed win wheels"),
            .body = PGuaranteed::tr(
                "Many of these wheels are big and expensive, but they maximise your chance of one "
                "or more 3-matches or 5-matches in your lottery entries. Either pick your own "
                "numbers or use the Random Selection buttons. The wheels are designed for pick-6 "
                "lotteries.")};
}

PlayControlNames Names() {
    PlayControlNames names;
    names.lotteries = QStringLiteral("Label5");
    names.help = QStringLiteral("Command10");
    names.filters = QStringLiteral("Label6");
    names.conditions = QStringLiteral("Label12");
    names.explain = QString();
    names.status = QStringLiteral("Label10");
    return names;
}

QString Name(const char* name) { return QString::fromLatin1(name); }

}  // namespace

PGuaranteed::PGuaranteed(Program& program, QWidget* parent)
    : RetryingForm(program, Words(), Names(), mostLines, parent),
      board_(Named(new NumberBoard(QStringLiteral("Label1"), guaranteed_wheels::boardNumbers),
                   QStringLiteral("Board"))),
      count_(MakeLabel(QStringLiteral("Clicked"), QString())) {
    SetBusyRules(wheels::RulesOf("PGuaranteed").busy);
    BesideList().addWidget(BuildBoard());
    BesideList().addStretch(1);
    ColumnAndFilters().setDirection(QBoxLayout::LeftToRight);
    ColumnAndFilters().itemAt(ColumnAndFilters().count() - 1)->setAlignment(Qt::AlignBottom);
    ConditionsHeading().addWidget(MakeHelpButton(QStringLiteral("Command11"), tr(" Help ")));
    Foot().insertLayout(0, BuildPanels());
    connect(board_, &NumberBoard::changed, this, [this] { ShowCount(); });
    ShowCount();
}

QWidget* PGuaranteed::BuildBoard() {
    QPushButton* clear = MakeButton(QStringLiteral("Command16"), tr("Clear"));
    clear->setToolTip(tr(" Clear the number selection "));
    connect(clear, &QPushButton::clicked, this, [this] { ClearSelection(); });
    board_->setAccessibleName(tr("Click your numbers"));
    auto* area = new QWidget;
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    auto* heading = new QHBoxLayout;
    heading->addWidget(MakeLabel(QStringLiteral("Label9"), tr("   Click your numbers:")));
    heading->addStretch(1);
    heading->addWidget(count_);
    heading->addSpacing(8);
    heading->addWidget(clear);
    column->addLayout(heading);
    column->addWidget(board_);
    column->addWidget(MakeLabel(QStringLiteral("Label19"), tr("Designed for pick-6 lotteries")));
    return area;
}

QLayout* PGuaranteed::BuildPanels() {
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    for (std::size_t panel = 0; panel < panels_.size(); ++panel) {
        row->addWidget(BuildPanel(panel), 1);
    }
    return row;
}

QWidget* PGuaranteed::BuildPanel(std::size_t panel) {
    const GuaranteedPanel& words = guaranteedPanels.at(panel);
    auto* box = new QGroupBox(tr(words.title));
    Panel& parts = panels_.at(panel);
    QLabel* promise = MakeBody(Name(words.promiseLabel), tr(words.promise));
    parts.proof = new ToldProof(*promise, View(state()));
    parts.pick = MakeLabel(Name(words.pickLabel), QString());
    parts.uses = MakeLabel(Name(words.usesLabel), QString());
    parts.wheels = Named(new ComboList, Name(words.combo));
    parts.wheels->setAccessibleName(tr(words.title));
    auto* column = new QVBoxLayout(box);
    column->addWidget(promise);
    column->addLayout(BuildChoice(panel));
    column->addLayout(BuildButtons(panel));
    return box;
}

QLayout* PGuaranteed::BuildChoice(std::size_t panel) {
    Panel& parts = panels_.at(panel);
    const wheels::WheelList list = guaranteedPanels.at(panel).list;
    const int count = static_cast<int>(wheels::FamilyOf(list).items.size());
    for (int item = 0; item < count; ++item) {
        parts.wheels->addItem(ToQString(guaranteed_wheels::ItemText(list, item)));
    }
    parts.wheels->setMaxVisibleItems(count);
    connect(parts.wheels, &ComboList::clicked, this, [this, panel] { ChooseWheel(panel); });
    auto* row = new QHBoxLayout;
    row->addWidget(parts.wheels);
    row->addWidget(parts.pick);
    row->addWidget(parts.uses);
    row->addStretch(1);
    return row;
}

QLayout* PGuaranteed::BuildButtons(std::size_t panel) {
    QPushButton* generate = &GenerateButton();
    if (panel > 0) {
        generate = MakeButton(Name(guaranteedPanels.at(panel).generate), tr("Generate"));
        generate->setToolTip(GenerateButton().toolTip());
        connect(generate, &QPushButton::clicked, this, [this, panel] { GenerateFrom(panel); });
    }
    QPushButton* select = MakeButton(Member(QStringLiteral("Command12"), static_cast<int>(panel)),
                                     tr("Random selection"));
    select->setToolTip(tr(" Random selection of numbers "));
    connect(select, &QPushButton::clicked, this, [this, panel] { SelectAtRandom(panel); });
    auto* row = new QHBoxLayout;
    row->addWidget(generate);
    row->addWidget(select);
    row->addStretch(1);
    return row;
}
