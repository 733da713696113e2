// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/saving.h"

void SaveAll(std::initializer_list<std::function<void()>> saves) {
    std::string failures;
    for (const std::function<void()>& save : saves) {
        try {
            save();
        } catch (const Failure& failure) {
            failures += (failures.empty() ? "" : "\n\n") + std::string(failure.what());
        }
    }
    if (!failures.empty()) throw Failure(failures);
}

std::string CreateNumbered(ProgramFolder& folder, int first,
                           const std::function<std::string(int number)>& name,
                           std::string_view bytes) {
    for (int number = first;; ++number) {
        const std::string file = name(number);
        try {
            const bool taken = folder.Exists(file) || folder.FolderExists(file);
            if (!taken && folder.Create(file, bytes)) return file;
        } catch (const Failure& failure) {
            throw AfterRescue(folder, file, bytes, failure);
        }
    }
}

std::string NumberedName(std::string_view start, int number) {
    constexpr std::size_t digits = 3;
    std::string text = std::to_string(number);
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return std::string(start) + '.' + text;
}

std::string NewLinesOf(std::string_view name) { return std::string(name) + " (new lines)"; }
