// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of CreateDbase and where they stand.
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "databases/CreateDbase.h"
#include "platform/forms/FormLayout.h"
#include "platform/widgets/AddressTip.h"
#include "platform/widgets/BarInput.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/FindBox.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int barWidth = 280;

BarInput* MakeRule(const QString& barName, const QString& valueName, const QString& meaning,
                   const BarRange& range) {
    auto* rule = new BarInput(barName, valueName, meaning, range);
    rule->setMinimumWidth(barWidth);
    return rule;
}

}  // namespace

CreateDbase::CreateDbase(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("CreateDbase"), tr("Create Lottery Database"), parent) {
    auto* title = MakeTitle(QStringLiteral("Label17"), tr("Create lottery database"));
    auto* explanation = MakeBody(
        QStringLiteral("Label16"),
        tr("Create a database to store lottery draw results, then you can analyse the data for "
           "trends. You must enter one draw result to start off the database."));
    auto* columns = new QHBoxLayout;
    columns->addLayout(MakeLists(), 2);
    columns->addSpacing(24);
    columns->addLayout(MakeLottery(), 3);
    LayOutForm(this, title, explanation, columns, MakeActions());
    TabInReadingOrder();
    SetOpeningSize({900, 640});
}

QLayout* CreateDbase::MakeLists() {
    auto* templatesTitle = MakeLabel(QStringLiteral("Label3"), tr("Lottery templates:"));
    templates_ = Titled(templatesTitle, Named(new ListBox, QStringLiteral("List1")));
    auto* findTemplate = Named(new FindBox(*templates_), QStringLiteral("FindTemplate"));
    findTemplate->setPlaceholderText(tr("Find a template"));
    findTemplate->setAccessibleName(findTemplate->placeholderText());
    auto* databasesTitle = MakeLabel(QStringLiteral("Label15"), tr("Existing lottery databases:"));
    databases_ = Titled(databasesTitle, Named(new ListBox, QStringLiteral("List2")));
    connect(templates_, &ListBox::clicked, this, [this] { ChooseTemplate(); });

    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(templatesTitle);
    column->addWidget(findTemplate);
    column->addWidget(templates_, 3);
    column->addSpacing(8);
    column->addWidget(databasesTitle);
    column->addWidget(databases_, 2);
    return column;
}

QLayout* CreateDbase::MakeLottery() {
    auto* column = new QVBoxLayout;
    column->addWidget(
        MakeBody(QStringLiteral("Label18"),
                 tr("Pick a template or use the controls to define the type of lottery...")));
    column->addSpacing(4);
    column->addLayout(MakeNames());
    column->addSpacing(8);
    column->addLayout(MakeTypes());
    column->addLayout(MakeRules());
    column->addSpacing(16);
    column->addLayout(MakeFirstDraw());
    column->addStretch(1);
    return column;
}

QLayout* CreateDbase::MakeNames() {
    auto* nameTitle = MakeLabel(QStringLiteral("Label1"), tr("Lottery name:"));
    name_ = Titled(nameTitle, Named(new QLineEdit, QStringLiteral("Text3")));
    auto* addressTitle = MakeLabel(QStringLiteral("Label4"), tr("Web site:"));
    address_ = Titled(addressTitle,
                      Named(new QLineEdit(QStringLiteral("http://")), QStringLiteral("Text2")));
    auto* openWebSite =
        MakeIconButton(QStringLiteral("Command2"), QStringLiteral("internet-web-browser"),
                       tr(" Start Internet Explorer and go to site "));
    connect(openWebSite, &QPushButton::clicked, this,
            [this] { services().openPage(address_->text()); });
    connect(address_, &QLineEdit::textChanged, new AddressTip(openWebSite),
            &AddressTip::SetAddress);

    auto* names = new QGridLayout;
    names->setVerticalSpacing(8);
    names->addWidget(nameTitle, 0, 0);
    names->addWidget(name_, 0, 1, 1, 2);
    names->addWidget(addressTitle, 1, 0);
    names->addWidget(address_, 1, 1);
    names->addWidget(openWebSite, 1, 2);
    return names;
}

QLayout* CreateDbase::MakeTypes() {
    standardType_ = Named(new QRadioButton(tr("Standard lottery - pick x from y")),
                          Member(QStringLiteral("Option1"), 0));
    standardType_->setToolTip(tr(" Eg. pick 6 from 49 "));
    standardType_->setChecked(true);
    powerballType_ =
        Named(new QRadioButton(tr("Powerball type - pick x from y, plus one extra from z")),
              Member(QStringLiteral("Option1"), 1));
    powerballType_->setToolTip(tr(" Eg. pick 5 from 34, then 1 from 14 "));
    connect(powerballType_, &QRadioButton::toggled, this, [this](bool on) { OfferExtraBall(on); });

    auto* types = new QVBoxLayout;
    types->addWidget(standardType_);
    types->addWidget(powerballType_);
    return types;
}

QLayout* CreateDbase::MakeRules() {
    picks_ = MakeRule(QStringLiteral("HScroll1"), QStringLiteral("Label2"), tr("Numbers to pick"),
                      {.lowest = 4, .highest = 7, .value = 6, .largeChange = 1});
    highest_ = MakeRule(QStringLiteral("HScroll2"), QStringLiteral("Label6"), tr("Highest number"),
                        {.lowest = 10, .highest = 60, .value = 49});
    highestExtra_ = MakeRule(QStringLiteral("HScroll3"), QStringLiteral("Label8"),
                             tr("Highest extra ball"), {.lowest = 2, .highest = 60, .value = 14});
    auto* extraTitle = MakeLabel(QStringLiteral("Label11"), tr("Pick 1 from:"));
    extraBallRow_ = {extraTitle, highestExtra_};
    for (QWidget* control : extraBallRow_) {
        KeepPlaceWhenHidden(control);
        control->hide();
    }

    auto* rules = new QGridLayout;
    rules->setVerticalSpacing(8);
    AddRule(*rules, 0, MakeLabel(QStringLiteral("Label9"), tr("Pick:")), *picks_);
    AddRule(*rules, 1, MakeLabel(QStringLiteral("Label10"), tr("From:")), *highest_);
    AddRule(*rules, 2, extraTitle, *highestExtra_);
    rules->setColumnStretch(2, 1);
    connect(picks_, &BarInput::changed, this, [this] { OfferBoxes(); });
    return rules;
}

void CreateDbase::AddRule(QGridLayout& rules, int row, QLabel* title, BarInput& rule) {
    connect(&rule, &BarInput::changed, this, [this] { WordDrawTitle(); });
    rules.addWidget(title, row, 0, Qt::AlignTop);
    rules.addWidget(&rule, row, 1);
}

QLayout* CreateDbase::MakeFirstDraw() {
    auto* dateTitle = MakeLabel(QStringLiteral("Label5"), tr("Select draw date:"));
    date_ = Titled(dateTitle,
                   Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                         QStringLiteral("DTPicker1")));
    drawTitle_ = MakeLabel(QStringLiteral("Label7"), tr("Enter draw result:"));
    lastBoxTitle_ = MakeLabel(QStringLiteral("Label12"), tr("Bonus"));
    boxes_ = MakeDrawBoxes(0);
    boxes_[6]->hide();
    lastBoxHint_ = MakeBody(QStringLiteral("BonusHint"), QString());
    ExplainLastBox();

    auto* date = new QHBoxLayout;
    date->addWidget(dateTitle);
    date->addWidget(date_);
    date->addStretch(1);
    auto* draw = new QVBoxLayout;
    draw->addWidget(MakeBody(QStringLiteral("Label13"),
                             tr("Enter a lottery draw result to start off the database...")));
    draw->addSpacing(4);
    draw->addLayout(date);
    draw->addLayout(BuildDrawBoxes(drawTitle_, lastBoxTitle_, boxes_));
    draw->addWidget(lastBoxHint_);
    return draw;
}

QLayout* CreateDbase::MakeActions() {
    auto* save = WithKeysOf(Command::Save, MakeButton(QStringLiteral("Command1"), tr(" Save ")));
    save->setDefault(true);
    auto* cancel = MakeButton(QStringLiteral("CancelButton"), tr(" Cancel "));
    SetCloseButton(cancel);
    connect(save, &QPushButton::clicked, this, [this] { Save(); });
    connect(cancel, &QPushButton::clicked, this, [this] { AskAndClose(); });
    return BuildActionRow({save}, {cancel});
}
