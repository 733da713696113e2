// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/version_check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "core/memory_folder.h"
#include "shell/program_version.h"
#include "test_folders.h"

namespace {

std::optional<std::string> Latest(std::string_view page) {
    MemoryFolder folder;
    const auto latest = LatestVersion(folder, page);
    EXPECT_EQ(folder.Read("temp.txt"), page);
    return latest;
}

TEST(TheLatestVersion, StandsBehindTheMark) {
    EXPECT_EQ(Latest("TVX2.10.3\r\n"), "2.10.3");
    EXPECT_EQ(Latest("TVX2.10.3"), "2.10.3");
}

TEST(TheLatestVersion, IsThatOfTheFirstLine) {
    EXPECT_EQ(Latest("TVX2.0.0\r\nTVX3.0.0\r\n"), "2.0.0");
    EXPECT_EQ(Latest("TVX2.0.0\nnews"), "2.0.0");
    EXPECT_EQ(Latest("TVX2.0.0\rnews"), "2.0.0");
    EXPECT_EQ(Latest("\r\nTVX2.0.0\r\n"), std::nullopt);
}

TEST(TheLatestVersion, KeepsItsBlanks) {
    EXPECT_EQ(Latest("TVX 1.0.0  \r\n"), " 1.0.0  ");
    EXPECT_EQ(Latest("TVX1.0.0,x"), "1.0.0,x");
}

TEST(TheLatestVersion, MayBeEmpty) {
    EXPECT_EQ(Latest("TVX"), "");
    EXPECT_EQ(Latest("TVX\r\n1.0.0"), "");
}

TEST(TheLatestVersion, IsNoneWithoutTheMark) {
    EXPECT_EQ(Latest(""), std::nullopt);
    EXPECT_EQ(Latest("TV"), std::nullopt);
    EXPECT_EQ(Latest("tvx1.0"), std::nullopt);
    EXPECT_EQ(Latest(" TVX1.0.0"), std::nullopt);
    EXPECT_EQ(Latest("<html>not found</html>"), std::nullopt);
}

TEST(TheVersion, IsThatOfTheProjectInThreeParts) {
    const std::string version = ProgramVersion();
    EXPECT_EQ(std::ranges::count(version, '.'), 2) << version;
    std::ifstream file(SUPPLIED_DATA "/../CMakeLists.txt");
    const std::string project{std::istreambuf_iterator<char>(file), {}};
    EXPECT_NE(project.find("VERSION " + version + " "), std::string::npos) << version;
}

}  // namespace
