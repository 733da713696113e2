// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/version_check.h"

#include "core/field_reader.h"

namespace {

constexpr const char* workFile = "temp.txt";
constexpr std::string_view mark = "TVX";

}  // namespace

std::optional<std::string> LatestVersion(ProgramFolder& folder, std::string_view page) {
    folder.Write(workFile, page);
    if (!page.starts_with(mark)) return std::nullopt;
    const std::string written = folder.Read(workFile);
    return std::string(
        FieldReader(written, workFile).ReadLine("the latest version").substr(mark.size()));
}
