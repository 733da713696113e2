// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Form;
struct Program;

/// Whether somebody else has written the file of the current syndicate since it was read: then the
/// user is told, the members in memory are kept in `Backup/Undo`, and those of the file are read in
/// their place. The form, which writes nothing, shows them anew.
///
/// Settings that were read anew may name no syndicate any more: nothing will be written then, so
/// members that were changed are kept in `Backup/Undo`, and the form says so in its quiet line.
bool SyndicateReadAnew(Program& program, Form* form);
