// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;
struct Program;

/// Whether somebody else has written the file of the current syndicate since it was read: then the
/// user is told, the members in memory are kept in `Backup/Undo`, and those of the file are read in
/// their place. The form, which writes nothing, shows them anew.
bool SyndicateReadAnew(Program& program, QWidget* form);
