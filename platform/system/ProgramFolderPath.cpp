// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/ProgramFolderPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <filesystem>
#include <string>
#include <system_error>

#include "core/failure.h"
#include "platform/system/DiskFolder.h"
#include "platform/system/HelpPages.h"
#include "platform/system/TextConversion.h"
#include "platform/system/file_io.h"

namespace {

std::string FolderOfProcess() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

// What is no plain character stands there as its number, such as "\xE9".
std::string Escaped(const std::string& bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= ' ' && byte < 0x7F) {
            text += character;
        } else {
            text += {'\\', 'x', digits[byte / 16], digits[byte % 16]};
        }
    }
    return text;
}

// A folder that cannot be looked for is not taken for one that is not there.
bool IsFolder(const QString& path) try {
    return EntryAt(QFile::encodeName(path).toStdString()) == Entry::Folder;
} catch (const FileError& error) {
    throw Failure(FromQString(path) + " could not be looked for: " + error.reason + ".");
}

// Copies what the user's folder lacks of a folder in the shared one; empty: of that one itself.
void CopyWhatIsMissing(const QString& shared, const std::string& folder, DiskFolder& own) {
    const QString from = QDir(shared).filePath(QString::fromStdString(folder));
    if (!IsFolder(from)) return;
    if (!folder.empty() && !own.FolderExists(folder)) own.MakeFolder(folder);
    const std::string within = folder.empty() ? folder : folder + '/';
    const DiskFolder supplied(from);
    for (const std::string& name : supplied.Find("*")) {
        const std::string copy = within + name;
        if (!own.Exists(copy)) static_cast<void>(own.Create(copy, supplied.Read(name)));
    }
}

}  // namespace

QString ProgramFolderPath(const QString& executableFolder, const QString& userDataFolder) {
    // Qt gives none for a folder whose bytes are no text.
    if (executableFolder.isEmpty()) {
        throw Failure("The program's folder, " + Escaped(FolderOfProcess()) +
                      ", has a name that is not written in UTF-8. Give it another one.");
    }
    const QString shared = QDir::cleanPath(executableFolder + QStringLiteral("/../share/quillon"));
    if (!IsFolder(shared)) return executableFolder;
    if (!QDir().mkpath(userDataFolder)) {
        throw Failure(FromQString(userDataFolder) +
                      " could not be made; it is to hold your files.");
    }
    DiskFolder own(userDataFolder);
    CopyWhatIsMissing(shared, {}, own);
    CopyWhatIsMissing(shared, "help", own);
    RenewHelpPages(shared, userDataFolder, QCoreApplication::applicationVersion());
    return userDataFolder;
}
