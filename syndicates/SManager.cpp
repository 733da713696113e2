// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SManager.h"

#include <QKeyEvent>
#include <QStackedLayout>
#include <memory>
#include <utility>
#include <vector>

#include "core/old_files.h"
#include "core/saving.h"
#include "core/settings.h"
#include "core/text.h"
#include "platform/forms/GridEditor.h"
#include "platform/forms/ShowTip.h"
#include "platform/forms/TakeBack.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "syndicates/SyndicateBoxes.h"
#include "syndicates/SyndicateReadAnew.h"
#include "syndicates/TotalBox.h"

namespace {

const QColor negative(0xA0, 0, 0);
const QColor notNegative(Qt::black);

QColor ColourOf(Money amount) { return amount.IsNegative() ? negative : notNegative; }

}  // namespace

const CurrencyForm& SManager::Currency() const { return services().region.currency; }

std::string SManager::DiaryFile() const {
    return DiaryFileOf(view().Settings(setting::SyndicateFile));
}

void SManager::Load() {
    Skinning(QStringLiteral("SkinSyndicates.jpg"), {.title = {QStringLiteral("Label1")},
                                                    .body = {QStringLiteral("Label3")},
                                                    .small = SyndicateBoxes::Labels(),
                                                    .status = {}});
    boxes_->Show(DetailsOf(view()));
    dirty_.Clear();
    detailsTyped_ = false;
    date_->SetValue(services().today());
    ShowDiary();
    editor_->GoTo(1, 1);
    AddUp();
}

void SManager::ShowDiary() {
    shown_ = {.name = DiaryFile(), .bytes = {}};
    if (!folder().Exists(DiaryFile())) return;
    shown_.bytes = folder().Read(DiaryFile());
    const int count = LoadDiary(*diary_, folder(), DiaryFile(), Currency());
    ShowRows(1, count);
    for (int row = 1; row <= count; ++row) {
        for (int column = 0; column < diary_column::Count; ++column) {
            if (!HoldsMoney(column)) continue;
            const Money amount = AmountIn(*diary_, row, column, Currency());
            grid_->SetCellColour(row, column, ColourOf(amount));
        }
    }
}

void SManager::ShowRows(int first, int last) {
    const DiaryTable& diary = *diary_;
    for (int row = first; row <= last; ++row) {
        for (int column = 0; column < diary_column::Count; ++column) {
            grid_->SetCell(row, column, ToQString(diary(row, column)));
        }
    }
}

void SManager::RememberDiary(const QString& command) {
    std::vector<QColor> colours;
    for (int row = 1; row <= lastRecord; ++row) {
        for (int column = 0; column < diary_column::Count; ++column) {
            colours.push_back(grid_->CellColour(row, column));
        }
    }
    auto before = std::make_shared<DiaryTable>(*diary_);
    takeBack_->Remember(
        command, [this, before = std::move(before), colours = std::move(colours), changed = dirty_,
                  row = editor_->Row(), column = editor_->Column()] {
            *diary_ = *before;
            ShowRows(1, lastRecord);
            auto colour = colours.begin();
            for (int each = 1; each <= lastRecord; ++each) {
                for (int at = 0; at < diary_column::Count; ++at)
                    grid_->SetCellColour(each, at, *colour++);
            }
            dirty_ = changed;
            if (detailsTyped_) dirty_.Set();
            editor_->GoTo(row, column);
            AddUp();
            return true;
        });
}

void SManager::FollowCell(int row, int column) {
    editor_->MarkCell();
    if (column == diary_column::Date) {
        EditDate(row);
    } else {
        EditText(row, column);
    }
}

// The arrow keys go on through a column of dates.
void SManager::EditDate(int row) {
    editors_->setCurrentWidget(date_);
    const Date today = services().today();
    const std::string& cell = std::as_const(*diary_)(row, diary_column::Date);
    date_->SetValue(ReadDate(cell, services().region, today).value_or(today));
    if (!grid_->hasFocus()) date_->setFocus();
}

void SManager::EditText(int row, int column) {
    editors_->setCurrentWidget(text_);
    const bool isText = column == diary_column::Notes;
    text_->SetTaken(isText ? QString() : QStringLiteral("0123456789.-"));
    const std::string& cell = std::as_const(*diary_)(row, column);
    editor_->Show(ToQString(HoldsMoney(column) ? WithoutSymbol(cell, Currency()) : cell));
    text_->setFocus();
}

void SManager::FocusEditor() { editors_->currentWidget()->setFocus(); }

// Enter in the picker enters as it does in the box, which does it by itself.
bool SManager::eventFilter(QObject* watched, QEvent* event) {
    if (watched != date_ || event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    date_->interpretText();
    Enter();
    return true;
}

void SManager::Enter() {
    const int row = editor_->Row();
    const int column = editor_->Column();
    RememberDiary(tr("cell changed"));
    if (!EnterInto(row, column)) {
        takeBack_->Drop();
        ShowTip(services(), this, 6);
        return;
    }
    Rebalance(*diary_, row, Currency());
    ShowRows(row, row);
    dirty_.Set();
    const bool atEnd = column == diary_column::Notes;
    editor_->GoTo(atEnd ? row + 1 : row, atEnd ? 0 : column + 1);
    AddUp();
}

// An amount that is too large to be counted is not entered.
bool SManager::EnterInto(int row, int column) {
    std::string& cell = (*diary_)(row, column);
    const std::string typed = Trim(FromQString(text_->text()));
    if (column == diary_column::Date) {
        cell = MediumDate(date_->Value());
    } else if (!HoldsMoney(column)) {
        cell = typed;
    } else {
        const auto amount = TypedMoney(typed, Currency());
        if (!amount) return false;
        cell = CurrencyText(*amount, Currency());
        grid_->SetCellColour(row, column, ColourOf(*amount));
    }
    return true;
}

void SManager::AddUp() {
    for (int row = 1; row <= lastRecord; ++row) {
        if (!AmountIn(*diary_, row, diary_column::Balance, Currency()).IsNegative()) continue;
        grid_->SetCellColour(row, diary_column::Balance, negative);
    }
    const Money total = Total(*diary_, Currency());
    total_->Show(ToQString(CurrencyText(total, Currency())), ColourOf(total));
    editor_->GoTo(editor_->Row(), editor_->Column());
}

void SManager::DeleteRow() {
    const int row = editor_->Row();
    if (row == lastRecord) return Say(tr("The last row is not deleted"));
    RememberDiary(tr("row deleted"));
    DeleteRecord(*diary_, row);
    ShowRows(row, lastRecord);
    editor_->GoTo(row, diary_column::Tickets);
    AddUp();
}

void SManager::MoveUp() {
    const int row = editor_->Row();
    if (row == 1) return;
    RememberDiary(tr("row moved"));
    if (!MoveRecordUp(*diary_, row)) {
        takeBack_->Drop();
        return editor_->GoTo(row, editor_->Column());
    }
    ShowRows(row - 1, row);
    editor_->GoTo(row - 1, diary_column::Tickets);
    grid_->ScrollToRow(row - 1);
}

void SManager::MoveDown() {
    const int row = editor_->Row();
    if (row == lastRecord) return;
    RememberDiary(tr("row moved"));
    if (!MoveRecordDown(*diary_, row)) {
        takeBack_->Drop();
        return editor_->GoTo(row, editor_->Column());
    }
    ShowRows(row, row + 1);
    editor_->GoTo(row + 1, diary_column::Tickets);
    grid_->ScrollToRow(row + 1);
}

void SManager::Save() {
    const SyndicateDetails details = Trimmed(boxes_->Typed());
    if (!HasNames(details)) {
        services().messages.Show(this, NamesMissing(tr("Cannot have a syndicate without    \r\n"
                                                       "a manager and a syndicate name...  ")));
        return;
    }
    if (ChangedOutside(program(), this, shown_, DiaryText(*diary_))) return ReadDiaryAnew();
    PutDetails(state(), details);
    if (SyndicateReadAnew(program(), this)) return boxes_->Show(DetailsOf(view()));
    SaveAll({[this] { SaveSyndicate(state(), folder()); },
             [this] { WriteKeepingOld(folder(), DiaryFile(), DiaryText(*diary_)); }});
    Unload();
}

void SManager::ReadDiaryAnew() {
    takeBack_->Forget();
    diary_->Fill({});
    ShowRows(1, lastRecord);
    ShowDiary();
    editor_->GoTo(1, 1);
    AddUp();
}

void SManager::Print() {
    AddUp();
    const SyndicateDetails details = boxes_->Typed();
    const auto typed = [&details](int column) {
        return ToQString(details.manager.at(static_cast<std::size_t>(column)));
    };
    DiaryFrame frame{.syndicate = ToQString(details.syndicate),
                     .manager = typed(member_column::Name),
                     .address = {},
                     .phone = typed(member_column::Phone),
                     .email = typed(member_column::Email),
                     .total = total_->text()};
    int column = member_column::Address;
    for (QString& line : frame.address) line = typed(column++);
    services().printDiary(this, *grid_, frame);
    grid_->SetTopRow(1);
    editor_->GoTo(1, diary_column::Tickets);
}

void SManager::Close() {
    if (dirty_.MayClose(services().messages, this, UnsavedWarning())) Unload();
}
