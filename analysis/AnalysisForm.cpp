// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/AnalysisForm.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/draw_database.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/Hourglass.h"
#include "platform/forms/LotteryList.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int listWidth = 230;
constexpr int listHeight = 104;
constexpr int columnSpacing = 6;

}  // namespace

AnalysisForm::AnalysisForm(Program& program, const AnalysisFormText& text,
                           const AnalysisNames& names, QWidget* parent)
    : Form(program, text.name, text.caption, parent),
      heading_(MakeTitle(names.heading, text.heading)),
      explanation_(MakeBody(names.explanation, text.explanation)),
      explanations_(names.explanation),
      top_(new QHBoxLayout),
      texts_(new QVBoxLayout),
      choices_(new QVBoxLayout),
      results_(new QHBoxLayout),
      foot_(new QVBoxLayout) {
    explanation_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    top_->setSpacing(20);
    choices_->setSpacing(columnSpacing);
    top_->addLayout(choices_);
    top_->addLayout(texts_, 1);
    texts_->addWidget(explanation_);
    results_->setSpacing(10);
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(heading_);
    layout->addLayout(top_);
    layout->addSpacing(4);
    layout->addLayout(results_, 1);
    layout->addLayout(foot_);
    layout->addLayout(BuildActions(text, names));
}

QLayout* AnalysisForm::BuildActions(const AnalysisFormText& text, const AnalysisNames& names) {
    QPushButton* close = MakeCommandButton(names.close, Command::Close, text.closeTip, this);
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    SetCloseButton(close);
    if (names.print.isEmpty()) return BuildActionRow({}, {close});
    return BuildActionRow({BuildPrintButton(text, names)}, {close});
}

QPushButton* AnalysisForm::BuildPrintButton(const AnalysisFormText& text,
                                            const AnalysisNames& names) {
    print_ = MakeCommandButton(names.print, Command::Print, text.printTip, this);
    connect(print_, &QPushButton::clicked, this, [this] { Print(); });
    return print_;
}

void AnalysisForm::AddLotteryList(const QString& promptName, const QString& prompt) {
    auto* column = new QVBoxLayout;
    column->setSpacing(columnSpacing);
    lotteries_ = Named(new ListBox(this), QStringLiteral("List1"));
    lotteries_->setFixedSize(listWidth, listHeight);
    QLabel* title = AddPrompt(promptName, prompt);
    lotteries_->setAccessibleName(title->text());
    column->addWidget(title);
    column->addWidget(lotteries_);
    column->addStretch(1);
    top_->insertLayout(0, column);
    connect(lotteries_, &ListBox::clicked, this, [this] { ChooseLottery(); });
}

QLabel* AnalysisForm::AddPrompt(const QString& name, const QString& text) {
    prompts_ += name;
    return MakeLabel(name, text, this);
}

QLabel* AnalysisForm::AddExplanation(const QString& name, const QString& text, int leastWidth) {
    explanations_ += name;
    QLabel* label = MakeBody(name, text, this);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setMinimumSize(leastWidth, label->heightForWidth(leastWidth));
    return label;
}

void AnalysisForm::ApplySkin() {
    Skinning(QStringLiteral("SkinAnalyse.jpg"), {.title = {heading_->objectName()},
                                                 .body = explanations_,
                                                 .small = prompts_,
                                                 .status = {}});
}

void AnalysisForm::Prepare() {
    TabInReadingOrder();
    ApplySkin();
    if (print_ != nullptr) print_->setEnabled(CanPrint());
}

void AnalysisForm::Load() {
    Prepare();
    if (lotteries_ == nullptr) return;
    ListDatabases(program(), *lotteries_);
    ChooseFirstLottery(*lotteries_);
}

void AnalysisForm::ChooseLottery() {
    const Hourglass hourglass;
    LoadDatabase(state(), folder(), static_cast<std::int16_t>(lotteries_->Index()));
    LotteryChosen();
}
