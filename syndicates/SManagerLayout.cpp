// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of SManager and where they stand.
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedLayout>

#include "platform/forms/FormLayout.h"
#include "platform/forms/GridEditor.h"
#include "platform/forms/TakeBack.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Widgets.h"
#include "syndicates/SManager.h"
#include "syndicates/SyndicateBoxes.h"
#include "syndicates/TotalBox.h"

SManager::SManager(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("SManager"), tr("Syndicate Manager"), parent),
      boxes_(new SyndicateBoxes(SyndicateBoxes::Columns::Two)),
      grid_(Named(new Grid(lastRecord + 1, diary_column::Count), QStringLiteral("MSFlexGrid1"))),
      text_(Named(new FilteredBox, QStringLiteral("Text2"))),
      date_(Named(new DatePicker(QStringLiteral("ddd d MMM yyyy"), services().today()),
                  QStringLiteral("DTPicker1"))),
      total_(Named(new TotalBox, QStringLiteral("Text3"))) {
    MakeGrid();
    LayOutForm(this, MakeTitle(QStringLiteral("Label1"), tr("Syndicate Manager")),
               MakeBody(QStringLiteral("Label3"),
                        tr("Create a syndicate by entering a syndicate name and a manager name. "
                           "The address, phone and email are not essential, but are useful. You "
                           "can keep track of the tickets bought, their cost and any winnings "
                           "below.")),
               BuildBody(), BuildActions());
    connect(boxes_, &SyndicateBoxes::changed, this, [this] {
        dirty_.Set();
        detailsTyped_ = true;
    });
    TabInReadingOrder();
    takeBack_ = new TakeBack(*this);
    SetOpeningSize({sizeHint().width(), 740});
}

QPushButton* SManager::Connect(QPushButton* button, Action action) {
    connect(button, &QPushButton::clicked, this, [this, action] { (this->*action)(); });
    return button;
}

void SManager::MakeGrid() {
    grid_->setAccessibleName(tr("Diary"));
    const std::initializer_list<QString> headings = {tr("Date"), tr("Tickets"), tr("Cost"),
                                                     tr("Won"),  tr("Balance"), tr("Notes")};
    int column = 0;
    for (const QString& heading : headings) grid_->SetCell(0, column++, heading);
    for (column = 0; column < diary_column::Count; ++column) {
        if (HoldsMoney(column)) grid_->SetColumnAlignment(column, Qt::AlignRight);
    }
    grid_->SetColumnAlignment(diary_column::Notes, Qt::AlignLeft);
    constexpr int padding = 12;  // a cell's own margins, beside the text
    const auto widthOf = [this](const QString& text) {
        return fontMetrics().horizontalAdvance(text) + padding;
    };
    grid_->SetColumnWidths(
        {widthOf(QStringLiteral("__00 Jun 00__")), widthOf(QStringLiteral("_Tickets_")),
         widthOf(QStringLiteral("_\u00A30000.00__")), widthOf(QStringLiteral("_\u00A300,00,000_")),
         widthOf(QStringLiteral("_\u00A30,000.00_")),
         widthOf(QStringLiteral("1234567890123456789012345678901234567890"))});
    grid_->setMinimumHeight(6 * grid_->verticalHeader()->defaultSectionSize());
}

QLayout* SManager::BuildBody() {
    auto* body = new QVBoxLayout;
    body->setSpacing(8);
    body->addWidget(boxes_);
    body->addSpacing(4);
    body->addWidget(MakeBody(QStringLiteral("Label5"),
                             tr("Keep track of the number of tickets bought, their cost, winnings "
                                "and notes by storing records here...")));
    body->addWidget(grid_, 1);
    body->addLayout(BuildEditors());
    return body;
}

QLayout* SManager::BuildEditors() {
    QLabel* title = MakeLabel(QStringLiteral("Label4"), tr("Edit:"));
    text_->SetReplaced(QLatin1Char('"'), QLatin1Char('\''));
    date_->setAccessibleName(tr("Date"));
    date_->installEventFilter(this);
    text_->setMinimumWidth(180);
    editors_ = new QStackedLayout;
    editors_->addWidget(Titled(title, text_));
    editors_->addWidget(date_);
    QPushButton* enter =
        Connect(MakeButton(QStringLiteral("Command2"), tr("Enter")), &SManager::Enter);
    editor_ = new GridEditor(*grid_, *text_, *enter);
    connect(editor_, &GridEditor::cellChanged, this, &SManager::FollowCell);
    connect(editor_, &GridEditor::editRequested, this, [this] { FocusEditor(); });

    auto* row = new QHBoxLayout;
    row->addWidget(title);
    row->addLayout(editors_, 1);
    row->addWidget(enter);
    row->addSpacing(16);
    row->addWidget(Connect(
        MakeCommandButton(QStringLiteral("Command5"), Command::Up, tr(" Move current row up ")),
        &SManager::MoveUp));
    row->addWidget(Connect(
        MakeCommandButton(QStringLiteral("Command6"), Command::Down, tr(" Move current row down ")),
        &SManager::MoveDown));
    AddApart(*row, Connect(MakeCommandButton(QStringLiteral("Command4"), Command::Delete,
                                             tr(" Delete current row ")),
                           &SManager::DeleteRow));
    row->addSpacing(24);
    row->addWidget(Connect(MakeButton(QStringLiteral("Command7"), tr("Total")), &SManager::AddUp));
    total_->setAccessibleName(tr("Total"));
    total_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("_\u00A300,000,000.00_")));
    row->addWidget(total_);
    return row;
}

QLayout* SManager::BuildActions() {
    QPushButton* save =
        Connect(MakeCommandButton(QStringLiteral("Command1"), Command::Save, tr(" Save the data ")),
                &SManager::Save);
    QPushButton* print =
        Connect(MakeCommandButton(QStringLiteral("Command8"), Command::Print, tr(" Print ")),
                &SManager::Print);
    print->setEnabled(services().printDiary != nullptr);
    QPushButton* close =
        Connect(MakeCommandButton(QStringLiteral("Command3"), Command::Close, tr(" Close window ")),
                &SManager::Close);
    SetCloseButton(close);
    return BuildActionRow({save, print}, {close});
}
