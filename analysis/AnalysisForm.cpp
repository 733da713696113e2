// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/AnalysisForm.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/draw_database.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/Hourglass.h"
#include "platform/forms/LotteryList.h"
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
      top_(new QHBoxLayout),
      choices_(new QVBoxLayout),
      results_(new QHBoxLayout),
      foot_(new QVBoxLayout) {
    explanation_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    top_->setSpacing(20);
    choices_->setSpacing(columnSpacing);
    top_->addLayout(choices_);
    top_->addWidget(explanation_, 1);
    results_->setSpacing(10);
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addWidget(heading_);
    layout->addLayout(top_);
    layout->addSpacing(4);
    layout->addLayout(results_, 1);
    layout->addLayout(foot_);
    layout->addLayout(BuildActions(names));
}

QLayout* AnalysisForm::BuildActions(const AnalysisNames& names) {
    QPushButton* print =
        MakeIconButton(names.print, QStringLiteral("document-print"), tr(" Print form "), this);
    QPushButton* close =
        MakeIconButton(names.close, QStringLiteral("window-close"), tr(" Close "), this);
    print->setEnabled(static_cast<bool>(services().printForm));
    connect(print, &QPushButton::clicked, this, [this] { services().printForm(*this); });
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    SetCloseButton(close);
    return BuildActionRow({print}, {close});
}

void AnalysisForm::AddLotteryList() {
    auto* column = new QVBoxLayout;
    column->setSpacing(columnSpacing);
    list1_ = Named(new ListBox(this), QStringLiteral("List1"));
    list1_->setFixedSize(listWidth, listHeight);
    QLabel* label1 = AddPrompt(QStringLiteral("Label1"), tr("Select a lottery:"));
    list1_->setAccessibleName(label1->text());
    column->addWidget(label1);
    column->addWidget(list1_);
    column->addStretch(1);
    top_->insertLayout(0, column);
    connect(list1_, &ListBox::clicked, this, [this] { List1_Click(); });
}

QLabel* AnalysisForm::AddPrompt(const QString& name, const QString& text) {
    prompts_ += name;
    return MakeLabel(name, text, this);
}

void AnalysisForm::ApplySkin() {
    Skinning(QStringLiteral("SkinAnalyse.jpg"), {.title = {heading_->objectName()},
                                                 .body = {explanation_->objectName()},
                                                 .small = prompts_,
                                                 .status = {}});
}

void AnalysisForm::Load() {
    TabInReadingOrder();
    ApplySkin();
    if (list1_ == nullptr) return;
    ListDatabases(program(), *list1_);
    ChooseFirstLottery(*list1_);
}

void AnalysisForm::List1_Click() {
    const Hourglass hourglass;
    LoadDatabase(state(), folder(), static_cast<std::int16_t>(list1_->Index()));
    LotteryChosen();
}
