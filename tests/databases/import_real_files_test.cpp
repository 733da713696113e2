// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>

#include "databases/import_eras.h"
#include "databases/import_merge.h"
#include "tests/databases/imports.h"
#include "tests/databases/real_pages.h"

namespace {

std::vector<std::string> FieldsOf(std::string line) {
    std::erase(line, '\r');
    std::vector<std::string> fields(1);
    for (const char character : line) {
        if (character == ',') {
            fields.emplace_back();
        } else {
            fields.back() += character;
        }
    }
    return fields;
}

// The draws that a file is known to hold, with the first extra ball.
std::vector<std::string> KnownDraws(const std::string& file) {
    std::istringstream lines(RealPage("truth/" + file + ".truth.csv"));
    std::string line;
    std::getline(lines, line);
    const auto header = FieldsOf(line);
    const auto extra =
        static_cast<std::size_t>(std::find(header.begin(), header.end(), "extra") - header.begin());
    std::vector<std::string> draws;
    while (std::getline(lines, line)) {
        const auto fields = FieldsOf(line);
        std::string draw = fields[0] + ": " + fields[1];
        for (std::size_t i = 2; i < extra; ++i) {
            if (!fields[i].empty()) draw += ", " + fields[i];
        }
        if (extra < fields.size() && !fields[extra].empty()) draw += " + " + fields[extra];
        draws.push_back(draw);
    }
    return draws;
}

std::vector<std::string> FilesWithTruth() {
    std::vector<std::string> files;
    const std::string folder = REAL_DRAWS "/operator-files";
    if (!std::filesystem::exists(folder)) return files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.is_regular_file()) files.push_back(entry.path().filename().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

#define SKIP_WITHOUT_REAL_FILES(files) \
    if ((files).empty()) GTEST_SKIP() << "no folder of real results files"

TEST(ImportRealFiles, GiveTheirDrawsByTheProposalAlone) {
    const auto files = FilesWithTruth();
    SKIP_WITHOUT_REAL_FILES(files);
    for (const std::string& file : files) {
        for (const auto order : {Region::Order::DayMonthYear, Region::Order::MonthDayYear,
                                 Region::Order::YearMonthDay}) {
            const Imported imported = ImportByProposal(RealPage(file), ImportRulesOfDates(order));
            EXPECT_EQ(LinesOf(imported.draws.draws), KnownDraws(file))
                << file << NotesOf(imported.proposal);
            for (const ImportNote& note : imported.proposal.notes) {
                EXPECT_FALSE(note.guess) << file << ": " << note.text;
            }
        }
    }
}

TEST(ImportRealFiles, GiveEachRowADrawOrAReason) {
    const auto files = FilesWithTruth();
    SKIP_WITHOUT_REAL_FILES(files);
    for (const std::string& file : files) {
        const Imported imported = ImportByProposal(RealPage(file));
        const ImportTable table(DecodeImport(RealPage(file)).text,
                                imported.proposal.mapping.separator);
        EXPECT_EQ(imported.draws.draws.size() + imported.draws.leftOut.size(), table.Rows());
        for (const LeftOutRow& row : imported.draws.leftOut) {
            EXPECT_TRUE(row.reason == LeftOut::Heading || row.reason == LeftOut::Rule ||
                        row.reason == LeftOut::Text)
                << file << " " << row.line << ": " << row.why << " " << row.text;
        }
    }
}

TEST(ImportRealFiles, ImportedAgainAddNothing) {
    const auto files = FilesWithTruth();
    SKIP_WITHOUT_REAL_FILES(files);
    for (const std::string& file : files) {
        const Imported imported = ImportByProposal(RealPage(file));
        const bool same = imported.proposal.mapping.extraFromSameDrum;
        const auto& draws = imported.draws.draws;
        const DateRules dates = ImportRulesOfDates();
        const std::string bytes =
            NewImportDatabase("A lottery", "", RulesOf(draws, same), draws, dates.today);
        const MergedDatabase again = MergeDraws(bytes, "dbase1.txt", draws, dates);
        EXPECT_EQ(again.bytes, bytes) << file;
        EXPECT_EQ(again.added, 0) << file;
        EXPECT_EQ(again.there, static_cast<int>(draws.size())) << file;
        EXPECT_TRUE(again.conflicts.empty() && again.unfit.empty()) << file;
    }
}

std::vector<std::string> RulesInErasOf(const std::string& file) {
    const Imported imported = ImportByProposal(RealPage(file));
    std::vector<std::string> rules;
    for (const ImportEra& era :
         FindEras(imported.draws.draws, imported.proposal.mapping.extraFromSameDrum)) {
        rules.push_back(RulesInWords(era.rules));
    }
    return rules;
}

TEST(ImportRealFiles, ShowTheirEras) {
    SKIP_WITHOUT_REAL_FILES(FilesWithTruth());
    using Rules = std::vector<std::string>;
    EXPECT_EQ(RulesInErasOf("uk_lotto_archive_page_2025.html"),
              (Rules{"6 of 1 to 59, bonus from the same numbers",
                     "6 of 1 to 49, bonus from the same numbers"}));
    EXPECT_EQ(
        RulesInErasOf("us_powerball_operator_2017.txt"),
        (Rules{"5 of 1 to 69, extra ball of 1 to 26", "5 of 1 to 59, extra ball of 1 to 35",
               "5 of 1 to 59, extra ball of 1 to 39", "5 of 1 to 55, extra ball of 1 to 42",
               "5 of 1 to 53, extra ball of 1 to 42", "5 of 1 to 49, extra ball of 1 to 42"}));
    EXPECT_EQ(
        RulesInErasOf("us_mega_millions_ny_open_data_2025.csv"),
        (Rules{"5 of 1 to 70, extra ball of 1 to 25", "5 of 1 to 75, extra ball of 1 to 15",
               "5 of 1 to 56, extra ball of 1 to 46", "5 of 1 to 52, extra ball of 1 to 52"}));
    EXPECT_EQ(RulesInErasOf("au_oz_lotto_operator_2024.csv"),
              (Rules{"7 of 1 to 47, bonus from the same numbers",
                     "6 of 1 to 45, bonus from the same numbers"}));
    EXPECT_EQ(RulesInErasOf("us_ny_lotto_open_data_2025.csv"),
              Rules{"6 of 1 to 59, bonus from the same numbers"});
}

}  // namespace
