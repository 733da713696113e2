// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/data_files.h"

#include "core/old_files.h"

void CopyDataFiles(const ProgramFolder& from, ProgramFolder& to, Replaced replaced,
                   const std::function<void(int count)>& copied) {
    int count = 0;
    for (const std::string_view pattern : floppyPatterns) {
        for (const std::string& name : from.Find(pattern)) {
            const std::string bytes = from.Read(name);
            if (replaced == Replaced::Kept) KeepIfDifferent(to, name, bytes);
            to.Write(name, bytes, from.LastWritten(name));
            copied(++count);
        }
    }
}

void KeepIfDifferent(ProgramFolder& folder, std::string_view name, std::string_view bytes) {
    if (folder.Exists(name) && folder.Read(name) != bytes) KeepOld(folder, name);
}
