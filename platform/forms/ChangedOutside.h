// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

class QWidget;
struct Program;

/// What a form has read from a file and shows, to be compared before it writes the file anew.
struct ShownFile {
    std::string name;
    std::string bytes;
};

/// Whether somebody else has written the file since it was shown; that it is gone is no reason not
/// to write it. The user is told, what the form would have written is kept in `Backup/Undo`, and
/// the form, which changes nothing, reads the file anew.
bool ChangedOutside(Program& program, QWidget* form, const ShownFile& shown,
                    const std::string& unsaved = {});
