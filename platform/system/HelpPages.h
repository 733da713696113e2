// SPDX-License-Identifier: GPL-3.0-or-later
// The help pages of a program that is installed for all users.
#pragma once

#include <QString>

/// Brings the help pages in the folder `own`, and the folder `help` with their pictures, up to
/// those in `shared` after a change of the program's version, as far as nobody has changed them
/// since they were copied: `help/supplied` remembers what they were. What cannot be written waits
/// for the next start.
void RenewHelpPages(const QString& shared, const QString& own, const QString& version);
