// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "core/program_folder.h"

/// The system's dialogs for colours, folders and files. Each gives the answers that a test has
/// prepared, in their order; a dialog that nobody prepared and an answer left over both fail the
/// test.
class FakeDialogs {
  public:
    ~FakeDialogs();

    std::deque<std::optional<QColor>> colours;  ///< Answers; nothing: cancelled.
    std::deque<QString> folders;                ///< Paths; empty: cancelled.
    std::deque<QString> files;                  ///< The same.

    std::vector<QColor> currentColours;  ///< The colour that each colour dialog began with.
    std::vector<QString> titles;         ///< The titles of the other two, in the order shown.
    std::vector<QString> filters;        ///< The filters of those for files.

    /// The folders that there are beside the program's own.
    std::map<QString, std::shared_ptr<ProgramFolder>> otherFolders;

    std::optional<QColor> Colour(const QColor& current);
    QString Folder(const QString& title);
    QString File(const QString& title, const QString& filter);
    std::shared_ptr<ProgramFolder> OpenFolder(const QString& path) const;
};
