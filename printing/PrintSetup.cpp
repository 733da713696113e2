// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintSetup.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>

#include "core/draw_database.h"
#include "core/failure.h"
#include "core/old_files.h"
#include "core/text.h"
#include "platform/forms/GridEditor.h"
#include "platform/forms/LotteryList.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/Printers.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/OptionGroup.h"
#include "printing/PrinterCorrection.h"
#include "printing/SlipView.h"
#include "printing/slip_marks.h"

void PrintSetup::Load() {
    Skinning(
        QStringLiteral("SkinFile.jpg"),
        {.title = {QStringLiteral("FormTitle")},
         .body = {QStringLiteral("Explanation"), QStringLiteral("Label5"), QStringLiteral("Label7"),
                  QStringLiteral("EditHint")},
         .small = {QStringLiteral("Label1"), QStringLiteral("Label1(1)"), QStringLiteral("Label3"),
                   QStringLiteral("Label4"), QStringLiteral("Label6"), QStringLiteral("Label2(0)"),
                   QStringLiteral("Label2(1)")},
         .status = {QStringLiteral("MeasureHint")}});
    ListDatabases(program(), *lotteries_);
    ChooseFirstLottery(*lotteries_);
    editor_->GoTo(1, 1);
    ListTemplates();
    ChooseFirstTemplate();
}

void PrintSetup::ListTemplates() {
    templates_->clear();
    files_->clear();
    for (const SlipTemplateFile& slip : ListSlipTemplates(folder())) {
        templates_->addItem(ToQString(slip.name));
        files_->addItem(ToQString(slip.file));
    }
}

void PrintSetup::ChooseFirstTemplate() {
    if (templates_->count() > 0) templates_->SetIndex(0);
}

void PrintSetup::ChooseLottery() {
    LoadDatabase(state(), folder(), static_cast<std::int16_t>(lotteries_->Index()));
    FollowMeasures();
}

void PrintSetup::ChooseTemplate() {
    const QString file = files_->item(templates_->Index())->text();
    ShowTemplate(ReadSlipTemplate(folder(), FromQString(file)));
    editor_->GoTo(1, 1);
}

void PrintSetup::ShowTemplate(const SlipTemplate& slip) {
    const QString lottery = ToQString(Trim(slip.lottery));
    for (int row = 0; row < lotteries_->count(); ++row) {
        if (lotteries_->item(row)->text() != lottery) continue;
        lotteries_->SetIndex(row);
        break;
    }
    orientation_->Option(static_cast<int>(slip.orientation)).setChecked(true);
    for (std::size_t i = 0; i < measures_.size(); ++i) {
        measures_[i]->setText(ToQString(slip.measures[i]));
        measures_[i]->setCursorPosition(0);
    }
    ShowPositions(slip);
}

void PrintSetup::ShowPositions(const SlipTemplate& slip) {
    for (int number = 1; number <= highestOnSlip; ++number) {
        for (int column = 0; column < positionColumns; ++column) {
            grid_->SetCell(number, column + 1, ToQString(slip.positions(number, column)));
        }
    }
    FollowMeasures();
}

void PrintSetup::ClearPositions() { ShowPositions({}); }

SlipTemplate PrintSetup::EnteredTemplate() const {
    SlipTemplate slip;
    slip.name = FromQString(name_->text());
    slip.lottery = FromQString(lotteries_->item(lotteries_->Index())->text());
    slip.orientation = static_cast<Orientation>(orientation_->Index());
    for (std::size_t i = 0; i < measures_.size(); ++i) {
        slip.measures[i] = FromQString(measures_[i]->text());
    }
    for (int number = 1; number <= highestOnSlip; ++number) {
        for (int column = 0; column < positionColumns; ++column) {
            slip.positions(number, column) = FromQString(grid_->Cell(number, column + 1));
        }
    }
    return slip;
}

// The number of a row is no position.
void PrintSetup::FollowCell(int row, int column) {
    if (column == 0) return editor_->GoTo(row, 1);
    editor_->MarkCell();
    if (isVisible()) {
        editor_->EditCell();
    } else {
        editor_->ShowCell();
    }
}

void PrintSetup::ChangePosition() {
    const double value = LeadingNumber(FromQString(position_->text()));
    grid_->SetCell(editor_->Row(), editor_->Column(), ToQString(FixedText(value, 2)));
    FollowMeasures();
}

void PrintSetup::FollowMeasures() {
    ShowSlip();
    hint_->setText(MeasureHint());
}

// What reads otherwise than it looks, or would end the run, is said while it can still be mended.
QString PrintSetup::MeasureHint() const {
    for (const QLineEdit* box : measures_) {
        const std::string text = FromQString(box->text());
        if (ReadsWhole(text)) continue;
        return tr("\"%1\" counts as %2: write numbers with a point, as in 38.2")
            .arg(box->text(), QString::number(LeadingNumber(text)));
    }
    const SlipTemplate slip = EnteredTemplate();
    for (const Measure perRow : {Measure::NumbersPerRow, Measure::ExtrasPerRow}) {
        if (LeadingWhole(slip[perRow]) != 0) continue;
        return tr("Numbers per row: 1 or more, for both kinds of number");
    }
    const int outOfReach = slip_->OutOfReach();
    if (outOfReach == 0) return {};
    return tr("Red marks begin outside of what the printer reaches: %1").arg(outOfReach);
}

void PrintSetup::ShowSlip() {
    constexpr int mostBoards = 20;  // as long as a number is being typed
    SlipLayout layout = LayoutOf(EnteredTemplate());
    layout.boardsAcross = std::min(layout.boardsAcross, mostBoards);
    layout.boardsDown = std::min(layout.boardsDown, mostBoards);
    const bool empty = grid_->Cell(1, 1).isEmpty();
    slip_->Show(empty ? Document() : TestSlip(layout, state().MaxNum, state().MaxPball),
                layout.marginX, layout.marginY);
}

// Up and Down lead through the positions while the box has the focus, as it has after every move.
bool PrintSetup::eventFilter(QObject* watched, QEvent* event) {
    if (watched == position_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent&>(*event).key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            return QCoreApplication::sendEvent(grid_, event);
        }
    }
    return Form::eventFilter(watched, event);
}

void PrintSetup::Generate() {
    SlipTemplate slip = EnteredTemplate();
    GeneratePositions(slip, state().MaxNum, state().MaxPball);
    ShowPositions(slip);
}

int PrintSetup::TemplateNamed(const std::string& name) const {
    for (int row = 0; row < templates_->count(); ++row) {
        if (LowerCase(FromQString(templates_->item(row)->text())) == LowerCase(name)) return row;
    }
    return -1;
}

void PrintSetup::Save() {
    // Kept on purpose: a position typed into the grid is lost.
    Generate();
    const SlipTemplate slip = EnteredTemplate();
    const int known = TemplateNamed(Trim(slip.name));
    if (known < 0) {
        const std::string file = CreateSlipTemplate(folder(), slip);
        templates_->addItem(ToQString(Trim(slip.name)));
        files_->addItem(ToQString(file));
        templates_->SetIndex(templates_->count() - 1);
    } else {
        WriteSlipTemplate(folder(), FromQString(files_->item(known)->text()), slip);
    }
    services().messages.Show(this,
                             {.title = tr("Lottery Quillon"), .text = tr("Template saved...    ")});
}

void PrintSetup::DeleteTemplate() {
    const int row = templates_->Index();
    if (row < 0) return Say(tr("There is no template to delete"));
    const QString name = templates_->item(row)->text();
    const Answer answer =
        services().messages.Show(this, {.title = tr("Delete template"),
                                        .text = tr("Delete ") % name % tr(" template?    "),
                                        .sign = Sign::Question,
                                        .buttons = Buttons::YesNo,
                                        .discards = true});
    if (answer == Answer::No) return;
    const std::string file = FromQString(files_->item(row)->text());
    try {
        if (folder().Exists(file)) DeleteKeepingOld(folder(), file);
    } catch (const Failure& failure) {
        // Only here a file that cannot be deleted is told and gone on from.
        services().messages.Show(
            this,
            {.title = tr("Error!"), .text = ToQString(failure.what()), .sign = Sign::Exclamation});
    }
    ListTemplates();
    ChooseFirstTemplate();
    ClearPositions();
    Say(tr("Templates left: %1").arg(templates_->count()));
}

void PrintSetup::PrintTest() {
    if (grid_->Cell(1, 1).isEmpty()) {
        services().messages.Show(this, {.title = tr("Error!"),
                                        .text = tr("Fill the grid first!    "),
                                        .sign = Sign::Exclamation});
        return;
    }
    const Document sheet = TestSlip(LayoutOf(EnteredTemplate()), state().MaxNum, state().MaxPball);
    if (sheet.sheets.empty()) return Say(tr("Without boards there is nothing to print"));
    Printers& printers = *services().printers;
    printers.Print(this, {.title = "Lottery slip, test print",
                          .options = {},
                          .compose = [sheet](const SheetRoom&) { return sheet; },
                          .corrected = true});
    Say(tr("Test print: %1").arg(printers.Current()));
}

void PrintSetup::AdjustPrinter() {
    PrinterCorrection correction(program(), this);
    correction.Load();
    correction.exec();
}

void PrintSetup::AskAndClose() {
    const Answer answer = services().messages.Show(
        this, {.title = tr("Close"),
               .text = tr("Close? (Any changes not saved will be lost.)  "),
               .sign = Sign::Question,
               .buttons = Buttons::YesNo,
               .discards = true});
    if (answer == Answer::Yes) Unload();
}
