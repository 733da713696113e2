// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/HelpPages.h"

#include <QCryptographicHash>
#include <QFile>
#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/system/TextConversion.h"
#include "platform/system/file_io.h"

namespace {

constexpr std::string_view recordName = "help/supplied";

/// What the record says of a file with these bytes.
std::string Line(const std::string& name, const std::string& bytes) {
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256);
    return hash.toHex().toStdString() + " " + name;
}

/// The pages and their pictures in the folder.
std::vector<std::string> PagesIn(const std::string& folder) {
    std::vector<std::string> names = {"help.html", "helpplay.html", "helpprint.html"};
    for (const std::string& name : NamesIn(folder + "help")) names.push_back("help/" + name);
    std::erase_if(names, [&folder](const std::string& name) {
        return EntryAt(folder + name) != Entry::File;
    });
    std::ranges::sort(names);
    return names;
}

/// Renews the pages that the record knows as they are, and gives the new record.
std::string Renewed(const std::string& shared, const std::string& own,
                    const std::set<std::string>& record, std::string version) {
    std::string renewed = std::move(version) + "\n";
    for (const std::string& name : PagesIn(shared)) {
        if (EntryAt(own + name) != Entry::File) continue;
        const std::string supplied = ReadWholeFile(shared + name);
        const std::string present = ReadWholeFile(own + name);
        if (present != supplied) {
            if (!record.contains(Line(name, present))) continue;
            WriteFileSafely(own + name, supplied);
        }
        renewed += Line(name, supplied) + "\n";
    }
    return renewed;
}

}  // namespace

void RenewHelpPages(const QString& shared, const QString& own, const QString& version) {
    const std::string from = QFile::encodeName(shared).toStdString() + "/";
    const std::string to = QFile::encodeName(own).toStdString() + "/";
    const std::string recordPath = to + std::string(recordName);
    try {
        if (EntryAt(from + "help") != Entry::Folder || EntryAt(to + "help") != Entry::Folder)
            return;
        std::string text;
        if (EntryAt(recordPath) == Entry::File) text = ReadWholeFile(recordPath);
        const std::string now = FromQString(version);
        if (text.starts_with(now + "\n")) return;
        std::set<std::string> record;
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) record.insert(line);
        WriteFileSafely(recordPath, Renewed(from, to, record, now));
    } catch (const FileError&) {
        // The older pages serve as well, and the next start tries again.
    }
}
