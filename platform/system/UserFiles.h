// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <string>

/// What came of reading a file that lies where the user says.
struct UserFile {
    /// The bytes; none where it cannot be read.
    std::optional<std::string> bytes;
    /// The file is larger than was asked for; nothing of it was read.
    bool tooLarge = false;
    /// The system's reason where it cannot be read otherwise.
    QString reason;
};

/// Reads a regular file of at most `limit` bytes. Whatever else the path leads to is not opened.
UserFile ReadUserFile(const QString& path, qint64 limit);
