// SPDX-License-Identifier: GPL-3.0-or-later
// Results files as operators publish them, through the form into a database equal to their truth.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "core/database_summary.h"
#include "test_folders.h"
#include "tests/databases/import_form.h"

namespace {

namespace fs = std::filesystem;

const fs::path operatorFiles = fs::path(REAL_DRAWS) / "operator-files";

std::vector<fs::path> OperatorFiles() {
    std::vector<fs::path> files;
    if (!fs::exists(operatorFiles)) return files;
    for (const auto& entry : fs::directory_iterator(operatorFiles)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<std::string> FieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, ',');) fields.push_back(field);
    if (line.ends_with(',')) fields.emplace_back();
    return fields;
}

/// One draw: its date, its main numbers, the extra ball that is kept or "".
struct TrueDraw {
    std::string date;
    std::vector<std::string> numbers;
    std::string extra;
    bool operator==(const TrueDraw&) const = default;
};

std::ostream& operator<<(std::ostream& out, const TrueDraw& draw) {
    out << draw.date << ":";
    for (const std::string& number : draw.numbers) out << " " << number;
    return out << " + " << draw.extra;
}

std::string LineOf(std::ifstream& file) {
    std::string line;
    std::getline(file, line);
    while (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
}

std::vector<TrueDraw> TruthOf(const fs::path& file) {
    std::ifstream truth(operatorFiles / "truth" / (file.filename().string() + ".truth.csv"));
    const std::vector<std::string> headings = FieldsOf(LineOf(truth));
    std::vector<TrueDraw> draws;
    while (truth.peek() != std::ifstream::traits_type::eof()) {
        const std::vector<std::string> fields = FieldsOf(LineOf(truth));
        if (fields.size() < 2) continue;
        TrueDraw& draw = draws.emplace_back();
        draw.date = fields.front();
        for (std::size_t i = 1; i < fields.size(); ++i) {
            if (headings[i].starts_with("n") && !fields[i].empty()) {
                draw.numbers.push_back(fields[i]);
            }
            if (headings[i] == "extra") draw.extra = fields[i];
        }
    }
    return draws;
}

std::string IsoDate(Date date) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text.data();
}

class ImportOperatorFile : public ImportDrawsForm, public testing::WithParamInterface<fs::path> {
  protected:
    void ImportTheFile() {
        Open();
        Choose(QString::fromStdString(GetParam().string()));
        ASSERT_TRUE(ImportButton().isEnabled()) << TextOf("Source").toStdString();
        Click(*form_, "Import");
        ASSERT_EQ(Databases().size(), 1U);
    }

    std::vector<TrueDraw> StoredDraws() {
        std::vector<TrueDraw> draws;
        const std::string content = test_.folder.Read(Databases().front());
        for (const std::string_view line : DrawLines(content)) {
            const std::vector<std::string> fields = FieldsOf(std::string(line));
            TrueDraw& draw = draws.emplace_back();
            draw.date = IsoDate(*DateOfLine(line, test_.services.region, test_.today));
            for (std::size_t column = 1; column <= 7 && column < fields.size(); ++column) {
                const std::string& number = fields[column];
                if (!number.empty() && number != "0") draw.numbers.push_back(number);
            }
            const std::string last = fields.size() > 8 ? fields[8] : std::string();
            if (last != "0") draw.extra = last;
        }
        return draws;
    }
};

TEST_P(ImportOperatorFile, BecomesALotteryOfItsTrueDraws) {
    ImportTheFile();
    const std::vector<TrueDraw> stored = StoredDraws();
    const std::vector<TrueDraw> truth = TruthOf(GetParam());
    ASSERT_EQ(stored.size(), truth.size());
    for (std::size_t i = 0; i < truth.size(); ++i) ASSERT_EQ(stored[i], truth[i]) << i;
}

TEST_P(ImportOperatorFile, AddsNothingTheSecondTime) {
    ImportTheFile();
    const std::string database = Databases().front();
    const std::string before = test_.folder.Read(database);
    Open();
    Choose(QString::fromStdString(GetParam().string()));
    EXPECT_FALSE(ImportButton().isEnabled()) << ImportButton().text().toStdString();
    EXPECT_TRUE(TextOf("Effect").startsWith(QStringLiteral("Adds nothing; ")))
        << TextOf("Effect").toStdString();
    EXPECT_EQ(test_.folder.Read(database), before);
    EXPECT_EQ(Databases().size(), 1U);
}

std::string NameOfFile(const testing::TestParamInfo<fs::path>& file) {
    std::string name = file.param.stem().string();
    std::erase_if(name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(OperatorFiles, ImportOperatorFile, testing::ValuesIn(OperatorFiles()),
                         NameOfFile);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ImportOperatorFile);

class ImportRealFile : public ImportDrawsForm {
  protected:
    void SetUp() override {
        if (!fs::exists(operatorFiles)) GTEST_SKIP() << "no operators' files beside the project";
    }

    QString PathOf(const char* file) {
        return QString::fromStdString((operatorFiles / file).string());
    }
};

TEST_F(ImportRealFile, ErasAreOfferedWhereTheRulesChanged) {
    for (const char* file :
         {"uk_lotto_archive_page_2025.html", "us_powerball_operator_2017.txt",
          "us_mega_millions_texas_2019.csv", "us_mega_millions_ny_open_data_2025.csv"}) {
        Open();
        Choose(PathOf(file));
        EXPECT_TRUE(Find<QWidget>(*form_, "Eras")->isVisible()) << file;
        const QString all = ImportButton().text();
        Click(*form_, "EraNewest");
        EXPECT_NE(ImportButton().text(), all) << file;
    }
}

// The file lacks the years between 1998 and 2022, so the first such draw in it is a later one.
TEST_F(ImportRealFile, TheNewestEraOfUkLottoIsThatOfFiftyNineNumbers) {
    Open();
    Choose(PathOf("uk_lotto_archive_page_2025.html"));
    EXPECT_TRUE(TextOf("EraChange").startsWith(QStringLiteral("Numbers above 49 from ")))
        << TextOf("EraChange").toStdString();
}

// The draws of 49 numbers as they were, and behind them 540 Saturdays of 59 numbers from 31 Oct on.
TEST_F(ImportRealFile, TheRulesOfUkLottoChangedInOctober2015) {
    std::ifstream old(fs::path(REAL_DRAWS) / "dbase100.txt", std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(old), {}};
    std::vector<PublishedDraw> draws = PublishedDraws(540, 59);
    for (const std::string_view line : DrawLines(content)) {
        const std::vector<std::string> fields = FieldsOf(std::string(line));
        PublishedDraw& draw = draws.emplace_back();
        draw.date = *DateOfLine(line, test_.services.region, test_.today);
        for (std::size_t i = 0; i < 6; ++i) draw.balls.at(i) = std::stoi(fields[i + 1]);
        draw.balls.back() = std::stoi(fields[8]);
    }
    Open();
    ChooseNew("uk_lotto.csv", ResultsCsv(draws));
    EXPECT_EQ(TextOf("EraChange"),
              QStringLiteral("Numbers above 49 from 31 Oct 2015 on. Statistics over such a change "
                             "mislead."));
    Click(*form_, "EraNewest");
    EXPECT_EQ(ImportButton().text(), QStringLiteral("Import 540 draws"));
}

TEST_F(ImportRealFile, ADrawThatWasChangedIsListed) {
    Open();
    Choose(PathOf("uk_lotto_operator_2014.csv"));
    Click(*form_, "Import");
    std::ifstream file(operatorFiles / "uk_lotto_operator_2014.csv", std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    bytes.replace(bytes.find("03-Dec-2014,17,"), 15, "03-Dec-2014,18,");
    ChooseNew("uk_lotto_operator_2014.csv", bytes);
    EXPECT_TRUE(TextOf("Effect").contains(QStringLiteral("1 with other numbers there")))
        << TextOf("Effect").toStdString();
    EXPECT_TRUE(Table("LeftOut").Row(0).cells.last().startsWith(QStringLiteral("03 Dec 2014")));
}

}  // namespace
