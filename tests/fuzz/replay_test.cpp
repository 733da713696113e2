// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the fuzz targets their seeds and what a few hundred small damages make of them, always the
// same ones. A target aborts where a reader does what it must not; the last line then says which
// input it was.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "test_folders.h"

namespace fs = std::filesystem;

extern "C" {
int fuzz_database(const std::uint8_t* data, std::size_t size);
int fuzz_dates(const std::uint8_t* data, std::size_t size);
int fuzz_diary(const std::uint8_t* data, std::size_t size);
int fuzz_entries(const std::uint8_t* data, std::size_t size);
int fuzz_import(const std::uint8_t* data, std::size_t size);
int fuzz_import_formats(const std::uint8_t* data, std::size_t size);
int fuzz_lottery_info(const std::uint8_t* data, std::size_t size);
int fuzz_lottery_templates(const std::uint8_t* data, std::size_t size);
int fuzz_notes(const std::uint8_t* data, std::size_t size);
int fuzz_settings(const std::uint8_t* data, std::size_t size);
int fuzz_slip_template(const std::uint8_t* data, std::size_t size);
int fuzz_syndicate(const std::uint8_t* data, std::size_t size);
int fuzz_uk_results(const std::uint8_t* data, std::size_t size);
int fuzz_us_results(const std::uint8_t* data, std::size_t size);
int fuzz_wheel49(const std::uint8_t* data, std::size_t size);
}

namespace {

struct Target {
    const char* name;
    int (*feed)(const std::uint8_t* data, std::size_t size);
    const char* supplied = nullptr;  ///< A file that comes with the program, as one more seed.
};

constexpr auto targets = std::to_array<Target>({
    {"fuzz_database", fuzz_database, "dbasedemo1.txt"},
    {"fuzz_dates", fuzz_dates},
    {"fuzz_diary", fuzz_diary},
    {"fuzz_entries", fuzz_entries},
    {"fuzz_import", fuzz_import},
    {"fuzz_import_formats", fuzz_import_formats},
    {"fuzz_lottery_info", fuzz_lottery_info, "Lottery Info.txt"},
    {"fuzz_lottery_templates", fuzz_lottery_templates, "LotteryTemplates.txt"},
    {"fuzz_notes", fuzz_notes},
    {"fuzz_settings", fuzz_settings},
    {"fuzz_slip_template", fuzz_slip_template},
    {"fuzz_syndicate", fuzz_syndicate},
    {"fuzz_uk_results", fuzz_uk_results},
    {"fuzz_us_results", fuzz_us_results},
    {"fuzz_wheel49", fuzz_wheel49, "wheel49.dat"},
});

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> SeedsOf(const Target& target) {
    std::vector<std::string> seeds = {""};
    const fs::path folder = fs::path(FUZZ_SEEDS) / target.name;
    std::vector<fs::path> files;
    if (fs::exists(folder)) files.assign(fs::directory_iterator(folder), {});
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) seeds.push_back(BytesOf(file));
    if (target.supplied != nullptr) {
        seeds.push_back(BytesOf(fs::path(SUPPLIED_DATA) / target.supplied));
    }
    return seeds;
}

// Makes small damages, the same ones in every run.
class Damage {
  public:
    std::string Done(std::string bytes) {
        for (std::size_t left = 1 + Below(4); left > 0; --left) DoOne(bytes);
        return bytes;
    }

  private:
    std::size_t Below(std::size_t end) { return end == 0 ? 0 : engine_() % end; }

    void DoOne(std::string& bytes) {
        static const std::array<std::string, 18> pieces = {",",
                                                           "\r\n",
                                                           "\n",
                                                           "\r",
                                                           "\"",
                                                           " ",
                                                           std::string(1, '\0'),
                                                           "-1",
                                                           "0",
                                                           "32768",
                                                           "-32769",
                                                           "99999999999999999999",
                                                           "1e999",
                                                           "\xA3",
                                                           "&H",
                                                           ",,,,,,,,,",
                                                           "31 Feb",
                                                           "0.5"};
        const std::size_t place = Below(bytes.size() + 1);
        const std::size_t length = Below(std::min<std::size_t>(bytes.size() - place, 40) + 1);
        switch (Below(6)) {
            case 0:
                if (place < bytes.size()) bytes[place] = static_cast<char>(Below(256));
                break;
            case 1:
                bytes.insert(place, pieces[Below(pieces.size())]);
                break;
            case 2:
                bytes.erase(place, length);
                break;
            case 3:
                bytes.replace(place, length, pieces[Below(pieces.size())]);
                break;
            case 4:
                bytes.insert(Below(bytes.size() + 1), bytes.substr(place, length));
                break;
            default:
                bytes.resize(place);
                break;
        }
    }

    std::mt19937 engine_{20050601};
};

char runningInput[128];

extern "C" void TellInput(int signal) {
    const auto written = ::write(STDERR_FILENO, runningInput, sizeof(runningInput));
    static_cast<void>(written);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

class FuzzTarget : public testing::TestWithParam<Target> {
  protected:
    void Feed(const std::string& bytes, std::size_t seed, int damage) {
        std::snprintf(runningInput, sizeof(runningInput), "%s: seed %zu, damage %d\n",
                      GetParam().name, seed, damage);
        const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
        EXPECT_EQ(GetParam().feed(data, bytes.size()), 0);
    }
};

TEST_P(FuzzTarget, TakesItsSeedsAndDamagedOnes) {
    std::signal(SIGABRT, TellInput);
    const auto seeds = SeedsOf(GetParam());
    EXPECT_GT(seeds.size(), 1U) << "no seeds for " << GetParam().name;
    constexpr std::size_t damages = 400;
    Damage damage;
    for (std::size_t seed = 0; seed < seeds.size(); ++seed) {
        Feed(seeds[seed], seed, 0);
        for (std::size_t i = 1; i <= damages / seeds.size(); ++i) {
            Feed(damage.Done(seeds[seed]), seed, static_cast<int>(i));
        }
    }
    std::signal(SIGABRT, SIG_DFL);
}

INSTANTIATE_TEST_SUITE_P(Readers, FuzzTarget, testing::ValuesIn(targets),
                         [](const auto& target) { return std::string(target.param.name); });

TEST(FuzzTargets, AreAllFed) {
    std::size_t sources = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(FUZZ_SEEDS).parent_path())) {
        sources += entry.path().extension() == ".cpp" ? 1 : 0;
    }
    EXPECT_EQ(sources, targets.size());
}

}  // namespace
