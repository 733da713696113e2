// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of ShowMyDrawsW and where they stand.
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "entries/EntryGrid.h"
#include "entries/MatchLooks.h"
#include "entries/ShowMyDrawsW.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/GridEditor.h"
#include "platform/forms/TakeBack.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/ElidingLabel.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int rowCount = 501;
constexpr int columnCount = 12;
constexpr int airAboveDeleting = 8;  // besides the spaces between rows

/// Keeps the room of so many lines, which a layout does not count in a wrapped text's smallest
/// height.
void KeepLines(QLabel& text, int lines) {
    text.setMinimumHeight(lines * text.fontMetrics().lineSpacing());
}

// Some captions stand on several buttons: the tool-tip tells them apart.
QPushButton* WithToolTip(QPushButton* button, const QString& toolTip) {
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip.trimmed());
    return button;
}

}  // namespace

ShowMyDrawsW::ShowMyDrawsW(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("ShowMyDrawsW"), tr("Show/Check Lottery Entries"), parent) {
    QLabel* explanation =
        MakeBody(QStringLiteral("Label10"),
                 tr("To play the same lottery entry in future draw, select the row and update the "
                    "draw date below. Numbers and names can be changed too. Click any item and use "
                    "the edit box below."));
    KeepLines(*explanation, 2);
    QLabel* title = MakeLabel(QStringLiteral("Label5"), tr("   Your lottery entries"));
    auto* body = new QVBoxLayout;
    body->setSpacing(8);
    body->addWidget(title);
    body->addWidget(MakeGrid(*title), 3);
    body->addWidget(unread_ = Named(new QLabel, QStringLiteral("UnreadEntries")));
    unread_->setWordWrap(true);
    unread_->hide();
    body->addWidget(checkSummary_ = Named(new ElidingLabel, QStringLiteral("CheckSummary")));
    body->addWidget(MakeBelow(), 2);
    LayOutForm(this, MakeTitle(QStringLiteral("Label8"), tr("Stored lottery entries")), explanation,
               body, MakeActions());
    TabInReadingOrder();
    takeBack_ = new TakeBack(*this);
    SetOpeningSize({sizeHint().width(), 740});
}

QWidget* ShowMyDrawsW::MakeBelow() {
    auto* below = new QWidget;
    auto* row = new QHBoxLayout(below);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(32);
    row->addLayout(MakeCommands());
    row->addLayout(MakeCheck(), 1);
    row->addLayout(MakeReport());
    // What a whole report does not need is the grid's.
    below->setMaximumHeight(fontMetrics().lineSpacing() + report_->maximumHeight() + 8);
    return below;
}

QWidget* ShowMyDrawsW::MakeGrid(const QLabel& title) {
    grid_ = Named(new Grid(rowCount, columnCount), QStringLiteral("MSFlexGrid1"));
    grid_->setAccessibleName(title.text().trimmed());
    SetEntryHeadings(*grid_);
    const auto widthOf = [this](const char* text) {
        return grid_->fontMetrics().horizontalAdvance(QLatin1String(text));
    };
    const int number = widthOf("---NUM----");
    grid_->SetColumnWidths({widthOf("------DATE--------"), number, number, number, number, number,
                            number, number, number, widthOf("--------LOTTERY NAME---------"),
                            widthOf("-----PLAYER NAME---------"), widthOf("----dbase000.txt----")});
    grid_->setMinimumHeight(6 * grid_->verticalHeader()->defaultSectionSize());
    return grid_;
}

// The command rests while another one runs.
QPushButton* ShowMyDrawsW::AddCommand(QPushButton* button, Action action) {
    connect(button, &QPushButton::clicked, this, [this, action] { (this->*action)(); });
    commands_.push_back(button);
    return button;
}

QPushButton* ShowMyDrawsW::MakeCommand(const QString& name, const QString& caption,
                                       const QString& toolTip, Action action) {
    return AddCommand(WithToolTip(MakeButton(name, caption), toolTip), action);
}

QPushButton* ShowMyDrawsW::MakeIconCommand(const QString& name, Command command,
                                           const QString& toolTip, Action action) {
    return AddCommand(MakeCommandButton(name, command, toolTip), action);
}

// What deletes stands last, and no other command just above it.
QLayout* ShowMyDrawsW::MakeCommands() {
    auto* commands = new QGridLayout;
    commands->setHorizontalSpacing(8);
    commands->setVerticalSpacing(8);
    int row = 0;
    for (const auto& widgets : {MakeItemRow(), MakeDateRow(), MakeSortRow()}) {
        int column = 0;
        for (QWidget* widget : widgets) commands->addWidget(widget, row, column++);
        ++row;
    }
    commands->setRowMinimumHeight(row++, airAboveDeleting);
    commands->addWidget(MakeLabel(QStringLiteral("DeleteLabel"), tr("Delete:")), row, 0);
    commands->addLayout(MakeDeletingButtons(), row++, 1, 1, -1);
    commands->setColumnMinimumWidth(1, 128);
    commands->setRowStretch(row, 1);
    return commands;
}

std::vector<QWidget*> ShowMyDrawsW::MakeItemRow() {
    QLabel* title = MakeLabel(QStringLiteral("Label2"), tr("Item:"));
    item_ = Titled(title, Named(new FilteredBox, QStringLiteral("Text1")));
    QPushButton* enter = MakeCommand(QStringLiteral("Command10"), tr("Enter"),
                                     tr(" Change cell value "), &ShowMyDrawsW::ChangeItem);
    // A click or Enter leads to the edit box; the arrow keys stay in the grid.
    editor_ = new GridEditor(*grid_, *item_, *enter);
    connect(editor_, &GridEditor::cellChanged, this, [this] { editor_->ShowCell(); });
    connect(editor_, &GridEditor::editRequested, this, [this] { editor_->EditCell(); });
    return {title, item_, enter};
}

std::vector<QWidget*> ShowMyDrawsW::MakeDateRow() {
    QLabel* title = MakeLabel(QStringLiteral("Label1"), tr("Date:"));
    date_ = Named(new DatePicker(QStringLiteral("dd MMM yy"), services().today()),
                  QStringLiteral("DTPicker1"));
    return {title, Titled(title, date_),
            MakeCommand(QStringLiteral("Command8"), tr("This row"),
                        tr(" Change date of current row "), &ShowMyDrawsW::ChangeDateOfRow),
            MakeCommand(QStringLiteral("Command12"), tr("All rows"),
                        tr(" Change date of all rows "), &ShowMyDrawsW::ChangeAllDates)};
}

QLayout* ShowMyDrawsW::MakeDeletingButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    const auto add = [this, row](const char* name, const QString& caption, const QString& toolTip,
                                 Action action) {
        QPushButton* button = MakeDeletingButton(QString::fromLatin1(name), caption);
        AddApart(*row, AddCommand(WithToolTip(button, toolTip), action));
    };
    add("Command4", tr("Out of date"), tr(" Delete lottery entries older than today "),
        &ShowMyDrawsW::DeleteOldRows);
    add("Command7", tr("This row"), tr(" Delete the current lottery entry "),
        &ShowMyDrawsW::DeleteThisRow);
    add("Command9", tr("All rows"), tr(" Delete all lottery entries "),
        &ShowMyDrawsW::DeleteAllRows);
    row->addStretch(1);
    return row;
}

std::vector<QWidget*> ShowMyDrawsW::MakeSortRow() {
    return {MakeLabel(QStringLiteral("SortLabel"), tr("Sort:")),
            MakeCommand(QStringLiteral("Command11"), tr("By date"),
                        tr(" Sort lottery entries by date "), &ShowMyDrawsW::SortRowsByDate),
            MakeCommand(QStringLiteral("Command3"), tr("By name"),
                        tr(" Sort lottery entries by player name "), &ShowMyDrawsW::SortRowsByName),
            MakeCommand(QStringLiteral("Command6"), tr("By lottery"),
                        tr(" Sort lottery entries by lottery name "),
                        &ShowMyDrawsW::SortRowsByLottery)};
}

QLayout* ShowMyDrawsW::MakeCheck() {
    auto* check = new QVBoxLayout;
    check->setSpacing(8);
    check->addWidget(WithKeysOf(Command::Generate,
                                MakeCommand(QStringLiteral("Command2"), tr("Check"),
                                            tr(" See if you have won! "), &ShowMyDrawsW::Check)),
                     0, Qt::AlignLeft);
    QLabel* explanation =
        MakeBody(QStringLiteral("Label9"),
                 tr("The Check button tells you if you have won anything. Each lottery entry is "
                    "checked with the lottery draw result on the date specified. Any numbers "
                    "matched are highlighted."));
    KeepLines(*explanation, 4);
    check->addWidget(explanation);
    check->addWidget(MakeColourKey());
    check->addStretch(1);
    return check;
}

QWidget* ShowMyDrawsW::MakeColourKey() {
    colourKey_ = new QWidget;
    auto* key = new QGridLayout(colourKey_);
    key->setContentsMargins(0, 0, 0, 0);
    key->setHorizontalSpacing(8);
    key->setVerticalSpacing(8);
    key->addWidget(MakeLabel(QStringLiteral("Label4"), tr("Match main draw number:")), 0, 0);
    key->addWidget(MakeMatchSample(QStringLiteral("Label3"), Match::Main), 0, 1);
    key->addWidget(MakeLabel(QStringLiteral("Label6"), tr("Match Bonus/Powerball:")), 1, 0);
    key->addWidget(MakeMatchSample(QStringLiteral("Label7"), Match::Extra), 1, 1);
    key->setColumnStretch(2, 1);
    KeepPlaceWhenHidden(colourKey_);
    colourKey_->hide();
    return colourKey_;
}

QLayout* ShowMyDrawsW::MakeReport() {
    QLabel* title = MakeLabel(QStringLiteral("Label14"), tr("Check report:"));
    report_ = Titled(title, Named(new QPlainTextEdit, QStringLiteral("Text2")));
    report_->setReadOnly(true);
    report_->setTabChangesFocus(true);
    const int line = report_->fontMetrics().lineSpacing();
    const int margins = 12;
    report_->setMinimumHeight(8 * line + margins);
    // The report of a lottery of seven numbers.
    report_->setMaximumHeight(18 * line + margins);
    report_->setMinimumWidth(report_->fontMetrics().averageCharWidth() * 34);
    auto* report = new QVBoxLayout;
    report->setSpacing(4);
    report->addWidget(title);
    report->addWidget(report_, 1);
    return report;
}

QLayout* ShowMyDrawsW::MakeActions() {
    QPushButton* save = MakeIconCommand(QStringLiteral("Command13"), Command::Save,
                                        tr(" Save the lottery entries "), &ShowMyDrawsW::Save);
    QPushButton* print = MakeCommandButton(QStringLiteral("Command5"), Command::Print,
                                           tr(" Print out lottery entries "));
    print->setEnabled(static_cast<bool>(services().printEntries));
    if (services().printEntries) AddCommand(print, &ShowMyDrawsW::Print);
    QPushButton* close = MakeIconCommand(QStringLiteral("Command1"), Command::Close, tr(" Close "),
                                         &ShowMyDrawsW::Close);
    SetCloseButton(close);
    return BuildActionRow({save, print}, {close});
}
