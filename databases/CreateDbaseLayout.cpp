// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of CreateDbase and where they stand.
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "databases/CreateDbase.h"
#include "platform/forms/FormLayout.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int barWidth = 240;

QScrollBar* MakeBar(const QString& name, int least, int most, int value) {
    auto* bar = Named(new QScrollBar(Qt::Horizontal), name);
    bar->setRange(least, most);
    bar->setValue(value);
    bar->setPageStep(5);
    bar->setFocusPolicy(Qt::StrongFocus);
    bar->setMinimumWidth(barWidth);
    return bar;
}

}  // namespace

CreateDbase::CreateDbase(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("CreateDbase"), tr("Create Lottery Database"), parent) {
    MakeTexts();
    MakeLists();
    MakeRules();
    MakeDraw();
    MakeActions();
    auto* columns = new QHBoxLayout;
    columns->addLayout(BuildLists(), 2);
    columns->addSpacing(24);
    columns->addLayout(BuildLottery(), 3);
    LayOutForm(this, label_[17], label_[16], columns, BuildActionRow({command1_}, {cancelButton_}));
    TabInReadingOrder();
    Connect();
    SetCloseButton(cancelButton_);
    resize(900, 640);
}

void CreateDbase::MakeTexts() {
    const auto label = [this](std::size_t number, const QString& text) {
        const QString name = QStringLiteral("Label%1").arg(number);
        label_.at(number) = MakeLabel(name, text);
    };
    label_[17] = MakeTitle(QStringLiteral("Label17"), tr("Create lottery database"));
    label_[16] = MakeBody(QStringLiteral("Label16"),
                          tr("Create a database to store lottery draw results, then you can "
                             "analyse the data for trends. You must enter one draw result to start "
                             "off the database."));
    label_[18] = MakeBody(QStringLiteral("Label18"),
                          tr("Pick a template or use the controls to define the type of "
                             "lottery..."));
    label_[13] = MakeBody(QStringLiteral("Label13"),
                          tr("Enter a lottery draw result to start off the database..."));
    label(1, tr("Lottery name:"));
    label(2, QStringLiteral("6"));
    label(3, tr("Lottery templates:"));
    label(4, tr("Web site:"));
    label(5, tr("Select draw date:"));
    label(6, QStringLiteral("49"));
    label(7, tr("Enter draw result:"));
    label(8, QStringLiteral("14"));
    label(9, tr("Pick:"));
    label(10, tr("From:"));
    label(11, tr("Pick 1 from:"));
    label(12, tr("Bonus"));
    label(15, tr("Existing lottery databases:"));
}

void CreateDbase::MakeLists() {
    list1_ = Titled(label_[3], Named(new ListBox, QStringLiteral("List1")));
    list2_ = Titled(label_[15], Named(new ListBox, QStringLiteral("List2")));
    text3_ = Titled(label_[1], Named(new QLineEdit, QStringLiteral("Text3")));
    text2_ =
        Titled(label_[4], Named(new QLineEdit(QStringLiteral("http://")), QStringLiteral("Text2")));
}

void CreateDbase::MakeRules() {
    option1_[0] = Named(new QRadioButton(tr("Standard lottery - pick x from y")),
                        Member(QStringLiteral("Option1"), 0));
    option1_[0]->setToolTip(tr(" Eg. pick 6 from 49 "));
    option1_[0]->setChecked(true);
    option1_[1] =
        Named(new QRadioButton(tr("Powerball type - pick x from y, plus one extra from z")),
              Member(QStringLiteral("Option1"), 1));
    option1_[1]->setToolTip(tr(" Eg. pick 5 from 34, then 1 from 14 "));
    hScroll1_ = MakeBar(QStringLiteral("HScroll1"), 4, 7, 6);
    hScroll1_->setPageStep(1);
    hScroll1_->setAccessibleName(tr("Numbers to pick"));
    hScroll2_ = MakeBar(QStringLiteral("HScroll2"), 10, 60, 49);
    hScroll2_->setAccessibleName(tr("Highest number"));
    hScroll3_ = MakeBar(QStringLiteral("HScroll3"), 2, 60, 14);
    hScroll3_->setAccessibleName(tr("Highest extra ball"));
    for (QWidget* hidden : std::initializer_list<QWidget*>{label_[8], label_[11], hScroll3_}) {
        KeepPlaceWhenHidden(hidden);
        hidden->hide();
    }
}

void CreateDbase::MakeDraw() {
    dtPicker1_ = Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                       QStringLiteral("DTPicker1"));
    Titled(label_[5], dtPicker1_);
    text1_ = MakeDrawBoxes(0);
    text1_[6]->hide();
}

void CreateDbase::MakeActions() {
    command1_ = MakeButton(QStringLiteral("Command1"), tr(" Save "));
    command1_->setDefault(true);
    command2_ = MakeIconButton(QStringLiteral("Command2"), QStringLiteral("internet-web-browser"),
                               tr(" Start Internet Explorer and go to site "));
    cancelButton_ = MakeButton(QStringLiteral("CancelButton"), tr(" Cancel "));
}

QLayout* CreateDbase::BuildLists() {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(label_[3]);
    column->addWidget(list1_, 3);
    column->addSpacing(8);
    column->addWidget(label_[15]);
    column->addWidget(list2_, 2);
    return column;
}

QLayout* CreateDbase::BuildLottery() {
    auto* names = new QGridLayout;
    names->setVerticalSpacing(8);
    names->addWidget(label_[1], 0, 0);
    names->addWidget(text3_, 0, 1, 1, 2);
    names->addWidget(label_[4], 1, 0);
    names->addWidget(text2_, 1, 1);
    names->addWidget(command2_, 1, 2);
    auto* column = new QVBoxLayout;
    column->addWidget(label_[18]);
    column->addSpacing(4);
    column->addLayout(names);
    column->addSpacing(8);
    column->addWidget(option1_[0]);
    column->addWidget(option1_[1]);
    column->addLayout(BuildRules());
    column->addSpacing(16);
    column->addLayout(BuildDraw());
    column->addStretch(1);
    return column;
}

QLayout* CreateDbase::BuildRules() {
    auto* rules = new QGridLayout;
    rules->setVerticalSpacing(8);
    const auto addRow = [rules](int row, QLabel* title, QScrollBar* bar, QLabel* value) {
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
        rules->addWidget(title, row, 0);
        rules->addWidget(bar, row, 1);
        rules->addWidget(value, row, 2);
    };
    addRow(0, label_[9], hScroll1_, label_[2]);
    addRow(1, label_[10], hScroll2_, label_[6]);
    addRow(2, label_[11], hScroll3_, label_[8]);
    rules->setColumnStretch(3, 1);
    return rules;
}

QLayout* CreateDbase::BuildDraw() {
    auto* date = new QHBoxLayout;
    date->addWidget(label_[5]);
    date->addWidget(dtPicker1_);
    date->addStretch(1);
    auto* draw = new QVBoxLayout;
    draw->addWidget(label_[13]);
    draw->addSpacing(4);
    draw->addLayout(date);
    draw->addLayout(BuildDrawBoxes(label_[7], label_[12], text1_));
    return draw;
}

void CreateDbase::Connect() {
    connect(list1_, &ListBox::clicked, this, [this] { List1_Click(); });
    connect(hScroll1_, &QScrollBar::valueChanged, this, [this] { HScroll1_Change(); });
    connect(hScroll2_, &QScrollBar::valueChanged, this, [this] { HScroll2_Change(); });
    connect(hScroll3_, &QScrollBar::valueChanged, this, [this] { HScroll3_Change(); });
    for (int index : {0, 1}) {
        connect(option1_[static_cast<std::size_t>(index)], &QRadioButton::toggled, this,
                [this, index](bool on) {
                    if (on) Option1_Click(index);
                });
    }
    connect(command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(command2_, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(cancelButton_, &QPushButton::clicked, this, [this] { CancelButton_Click(); });
}
