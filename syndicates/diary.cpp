// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/diary.h"

#include <algorithm>

#include "core/field_reader.h"
#include "core/text.h"

namespace {

bool AllCells(const DiaryTable& diary, int row, bool (*holds)(const std::string&)) {
    const std::string* cells = diary.Row(row);
    return std::all_of(cells, cells + DiaryTable::ColumnCount(), holds);
}

bool IsEmpty(const DiaryTable& diary, int row) {
    return AllCells(diary, row, [](const std::string& cell) { return cell.empty(); });
}

bool Exchange(DiaryTable& diary, int upper) {
    if (IsBlank(diary, upper + 1)) return false;
    std::string* const above = diary.Row(upper);
    std::swap_ranges(above, above + DiaryTable::ColumnCount(), diary.Row(upper + 1));
    return true;
}

}  // namespace

bool HoldsMoney(int column) {
    return column >= diary_column::Cost && column <= diary_column::Balance;
}

int LoadDiary(DiaryTable& diary, const ProgramFolder& folder, std::string_view file,
              const CurrencyForm& form) {
    const std::string content = folder.Read(file);
    FieldReader reader(content, std::string(file), FieldReader::Quotes::Removed);
    int row = 0;
    while (!reader.AtEnd()) {
        if (row == lastRecord) {
            throw FailureInFile(file, reader.Line() + 1, "a diary has 999 records at most.");
        }
        ++row;
        for (int column = 0; column < diary_column::Count; ++column) {
            const std::string_view field = reader.ReadField("a field of a record of the diary");
            if (!HoldsMoney(column)) {
                diary(row, column) = field;
                continue;
            }
            const auto amount = MoneyInCell(field, form);
            if (!amount) throw reader.Unexpected("an amount of money", field);
            diary(row, column) = CurrencyText(*amount, form);
        }
    }
    return row;
}

std::string DiaryText(const DiaryTable& diary) {
    std::string content;
    for (int row = 1; row <= lastRecord && !IsEmpty(diary, row); ++row) {
        for (int column = 0; column < diary_column::Count; ++column) {
            content += (column == 0 ? "\"" : ",\"") + diary(row, column) + '"';
        }
        content += "\r\n";
    }
    return content;
}

Money AmountIn(const DiaryTable& diary, int row, int column, const CurrencyForm& form) {
    const std::string& cell = diary(row, column);
    if (cell.empty()) return {};
    const auto amount = MoneyInCell(cell, form);
    if (amount) return *amount;
    throw Failure("diary, row " + std::to_string(row) + ": expected an amount of money, but " +
                  Quoted(cell) + " stands there, which is too large.");
}

Money Total(const DiaryTable& diary, const CurrencyForm& form) {
    Money total;
    for (int row = 1; row <= lastRecord; ++row) {
        total += AmountIn(diary, row, diary_column::Balance, form);
    }
    return total;
}

void Rebalance(DiaryTable& diary, int row, const CurrencyForm& form) {
    const Money won = AmountIn(diary, row, diary_column::Won, form);
    const Money cost = AmountIn(diary, row, diary_column::Cost, form);
    diary(row, diary_column::Balance) = CurrencyText(won - cost, form);
}

bool IsBlank(const DiaryTable& diary, int row) {
    return AllCells(diary, row, [](const std::string& cell) {
        return cell.find_first_not_of(' ') == std::string::npos;
    });
}

void DeleteRecord(DiaryTable& diary, int row) {
    if (row == lastRecord) return;
    const DiaryTable& source = diary;
    do {
        std::copy_n(source.Row(row + 1), DiaryTable::ColumnCount(), diary.Row(row));
    } while (!IsBlank(diary, row++));
}

bool MoveRecordUp(DiaryTable& diary, int row) { return row > 1 && Exchange(diary, row - 1); }

bool MoveRecordDown(DiaryTable& diary, int row) { return row < lastRecord && Exchange(diary, row); }
