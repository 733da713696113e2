// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/program_folder.h"

#include "core/text.h"

bool NameMatches(std::string_view name, std::string_view pattern) {
    const std::string wanted = LowerCase(pattern);
    const std::string given = LowerCase(name);
    std::size_t at = 0;
    std::size_t star =
        std::string::npos;  // the last "*" met, and the name's place behind what it took
    std::size_t taken = 0;
    std::size_t i = 0;
    while (at < given.size()) {
        if (i < wanted.size() && wanted[i] == '*') {
            star = i++;
            taken = at;
        } else if (i < wanted.size() && (wanted[i] == '?' || wanted[i] == given[at])) {
            ++i;
            ++at;
        } else if (star != std::string::npos) {
            i = star + 1;
            at = ++taken;
        } else {
            return false;
        }
    }
    return wanted.find_first_not_of('*', i) == std::string::npos;
}

Failure AfterRescue(ProgramFolder& folder, std::string_view name, std::string_view bytes,
                    const Failure& failure) {
    const std::string path = folder.Rescue(name, bytes);
    if (path.empty()) return failure;
    return Failure(std::string(failure.what()) + " What was to be written is kept in " + path +
                   ".");
}

std::string Appended(std::string_view oldBytes, std::string_view records) {
    std::string result(oldBytes);
    const bool lineOpen = !result.empty() && result.back() != '\n' && result.back() != '\r';
    if (lineOpen) result += "\r\n";
    return result.append(records);
}
