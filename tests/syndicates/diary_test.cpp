// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/diary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/syndicates/currency_forms.h"

namespace {

using Cells = std::vector<std::string>;

class ADiary : public testing::Test {
  private:
    std::unique_ptr<DiaryTable> ownTable_ = std::make_unique<DiaryTable>("diary");

  protected:
    DiaryTable& diary_ = *ownTable_;
    MemoryFolder folder_;

    int Load(const std::string& content, const CurrencyForm& form = british) {
        folder_.Write("Diary.000", content);
        return LoadDiary(diary_, folder_, "Diary.000", form);
    }

    void SetRow(int row, const Cells& cells) {
        int column = 0;
        for (const std::string& cell : cells) diary_(row, column++) = cell;
    }

    Cells Row(int row) { return {diary_.Row(row), diary_.Row(row) + 6}; }

    void FillTo(int last) {
        for (int row = 1; row <= last; ++row) diary_(row, 1) = std::to_string(row);
    }
};

const Cells empty(6);

TEST_F(ADiary, IsReadRecordByRecord) {
    const int count = Load(
        "\"01-Jun-2005\",\"5 lines\",\"\xA3"
        "5.00\",\"\xA3"
        "12.50\",\"\xA3"
        "7.50\",\"a, b\"\r\n"
        "\"some day\",\"\",\"5\",\"\",\"-5\",\"\"\r\n");
    EXPECT_EQ(count, 2);
    EXPECT_EQ(Row(1), (Cells{"01-Jun-2005", "5 lines",
                             "\xA3"
                             "5.00",
                             "\xA3"
                             "12.50",
                             "\xA3"
                             "7.50",
                             "a, b"}));
    EXPECT_EQ(Row(2), (Cells{"some day", "",
                             "\xA3"
                             "5.00",
                             "\xA3"
                             "0.00",
                             "-\xA3"
                             "5.00",
                             ""}));
    EXPECT_EQ(Row(3), empty);
}

TEST_F(ADiary, DoesNotRecomputeBalancesWhenItIsRead) {
    Load("\"\",\"\",\"5\",\"7\",\"99\",\"\"\r\n");
    EXPECT_EQ(diary_(1, diary_column::Balance),
              "\xA3"
              "99.00");
}

TEST_F(ADiary, LosesWhatStandsBehindAGroupSeparatorWhenItIsRead) {
    Load(
        "\"\",\"\",\"\xA3"
        "1,234.50\",\"\",\"\",\"\"\r\n");
    EXPECT_EQ(diary_(1, diary_column::Cost),
              "\xA3"
              "1.00");
    Load("\"\",\"\",\"1.234,50 \x80\",\"\",\"\",\"\"\r\n", german);
    EXPECT_EQ(diary_(1, diary_column::Cost), "1,00 \x80");
}

TEST_F(ADiary, OfAnotherRegionShowsNothingButKeepsItsFile) {
    const std::string content =
        "\"\",\"\",\"\xA3"
        "12.50\",\"\",\"\",\"\"\r\n";
    Load(content, american);
    EXPECT_EQ(diary_(1, diary_column::Cost), "$0.00");
    EXPECT_EQ(folder_.Read("Diary.000"), content);
}

TEST_F(ADiary, ReturnsFromItsFileInEveryRegion) {
    for (const CurrencyForm& form : {british, american, german, swedish}) {
        diary_.Fill({});
        SetRow(1, {"01-Jun-2005", "5", CurrencyText(Money::OfPennies(1250), form),
                   CurrencyText(Money(), form), CurrencyText(Money::OfPennies(-1250), form), "x"});
        const Cells before = Row(1);
        folder_.Write("Diary.000", DiaryText(diary_));
        diary_.Fill({});
        EXPECT_EQ(LoadDiary(diary_, folder_, "Diary.000", form), 1);
        EXPECT_EQ(Row(1), before);
    }
}

TEST_F(ADiary, WithoutRecordsHasNoBytes) {
    EXPECT_EQ(DiaryText(diary_), "");
    EXPECT_EQ(Load(""), 0);
}

TEST_F(ADiary, IsWrittenUpToTheFirstEmptyRow) {
    SetRow(1, {"", "", "", "", "", "note"});
    SetRow(3, {"lost", "", "", "", "", ""});
    EXPECT_EQ(DiaryText(diary_), "\"\",\"\",\"\",\"\",\"\",\"note\"\r\n");
    diary_(1, 5).clear();
    EXPECT_EQ(DiaryText(diary_), "");
    diary_(1, 5) = " ";
    EXPECT_NE(DiaryText(diary_), "") << "a blank is not empty";
}

TEST_F(ADiary, CutShortIsAFailure) {
    const std::string record = "\"\",\"\",\"\",\"\",\"\",\"\"\r\n";
    EXPECT_EQ(FailureOf([&] { Load(record + "\"\",\"\"\r\n"); }),
              "Diary.000, line 3: expected a field of a record of the diary, but the file ends "
              "there.");
    EXPECT_EQ(FailureOf([&] { Load(record + "\r\n"); }),
              "Diary.000, line 3: expected a field of a record of the diary, but the file ends "
              "there.");
}

TEST_F(ADiary, Has999RecordsAtMost) {
    std::string content;
    for (int row = 1; row <= 999; ++row) content += "\"\",\"1\",\"\",\"\",\"\",\"\"\r\n";
    EXPECT_EQ(Load(content), 999);
    EXPECT_EQ(FailureOf([&] { Load(content + "\"\",\"1\",\"\",\"\",\"\",\"\"\r\n"); }),
              "Diary.000, line 1000: a diary has 999 records at most.");
}

TEST_F(ADiary, IsWrittenToItsLastRow) {
    FillTo(999);
    const std::string content = DiaryText(diary_);
    EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 999);
    EXPECT_TRUE(content.ends_with("\"\",\"999\",\"\",\"\",\"\",\"\"\r\n"));
}

TEST_F(ADiary, TakesNoAmountThatCannotBeCounted) {
    EXPECT_EQ(FailureOf([&] { Load("\"\",\"\",\"12345678901234\",\"\",\"\",\"\"\r\n"); }),
              "Diary.000, line 1: expected an amount of money, but \"12345678901234\" stands "
              "there.");
}

TEST_F(ADiary, BalancesWhatWasWonAndWhatItCost) {
    for (const CurrencyForm& form : {british, american, german, swedish}) {
        SetRow(1, {"", "", CurrencyText(Money::OfPennies(510), form),
                   CurrencyText(Money::OfPennies(40), form), "typed", ""});
        Rebalance(diary_, 1, form);
        EXPECT_EQ(diary_(1, diary_column::Balance), CurrencyText(Money::OfPennies(-470), form));
    }
}

TEST_F(ADiary, CountsAnAmountOfAThousandAsWhatStandsBeforeTheSeparator) {
    SetRow(1, {"", "",
               "\xA3"
               "1,234.50",
               "", "", ""});
    Rebalance(diary_, 1, british);
    EXPECT_EQ(diary_(1, diary_column::Balance),
              "-\xA3"
              "1.00");
}

TEST_F(ADiary, BalancesAnEmptyRowToNothing) {
    Rebalance(diary_, 5, british);
    EXPECT_EQ(Row(5), (Cells{"", "", "", "",
                             "\xA3"
                             "0.00",
                             ""}));
}

TEST_F(ADiary, TotalsAllBalancesWithoutAGhost) {
    diary_(1, diary_column::Balance) =
        "\xA3"
        "0.30";
    diary_(500, diary_column::Balance) =
        "-\xA3"
        "0.10";
    diary_(999, diary_column::Balance) =
        "-\xA3"
        "0.20";
    diary_(2, diary_column::Won) =
        "\xA3"
        "7.00";
    EXPECT_EQ(CurrencyText(Total(diary_, british), british),
              "\xA3"
              "0.00");
    diary_(999, diary_column::Balance) =
        "-\xA3"
        "0.25";
    EXPECT_EQ(Total(diary_, british).Pennies(), -5);
}

TEST_F(ADiary, MovesTheRowsBehindADeletedOneUpToTheFirstBlankOne) {
    FillTo(3);
    diary_(4, 5) = "  ";
    diary_(5, 1) = "behind the gap";
    DeleteRecord(diary_, 2);
    EXPECT_EQ(diary_(1, 1), "1");
    EXPECT_EQ(diary_(2, 1), "3");
    EXPECT_EQ(diary_(3, 5), "  ");
    EXPECT_EQ(diary_(4, 5), "  ");
    EXPECT_EQ(diary_(5, 1), "behind the gap");
}

TEST_F(ADiary, ClearsTheLastUsedRowWhenThatIsDeleted) {
    FillTo(2);
    DeleteRecord(diary_, 2);
    EXPECT_EQ(Row(2), empty);
    EXPECT_EQ(diary_(1, 1), "1");
}

TEST_F(ADiary, DeletesNothingInRow999) {
    FillTo(999);
    DeleteRecord(diary_, 999);
    EXPECT_EQ(diary_(999, 1), "999");
    EXPECT_NE(FailureOf([this] { DeleteRecord(diary_, 998); }), "no failure")
        << "no blank row follows";
}

TEST_F(ADiary, DeletesRowOneOf998) {
    FillTo(998);
    DeleteRecord(diary_, 1);
    EXPECT_EQ(diary_(1, 1), "2");
    EXPECT_EQ(diary_(997, 1), "998");
    EXPECT_EQ(Row(998), empty);
}

TEST_F(ADiary, MovesARecordUp) {
    SetRow(1, {"a", "b", "c", "d", "e", "f"});
    SetRow(2, {"g", "h", "i", "j", "k", "l"});
    EXPECT_FALSE(MoveRecordUp(diary_, 1));
    EXPECT_FALSE(MoveRecordUp(diary_, 3)) << "a blank row";
    EXPECT_TRUE(MoveRecordUp(diary_, 2));
    EXPECT_EQ(Row(1), (Cells{"g", "h", "i", "j", "k", "l"}));
    EXPECT_EQ(Row(2), (Cells{"a", "b", "c", "d", "e", "f"}));
}

TEST_F(ADiary, MovesABlankRecordDownButNotPastOne) {
    FillTo(1);
    EXPECT_FALSE(MoveRecordDown(diary_, 1));
    EXPECT_EQ(diary_(1, 1), "1");
    diary_(999, 1) = "last";
    EXPECT_TRUE(MoveRecordDown(diary_, 998));
    EXPECT_EQ(diary_(998, 1), "last");
    EXPECT_EQ(Row(999), empty);
    EXPECT_FALSE(MoveRecordDown(diary_, 999));
}

}  // namespace
