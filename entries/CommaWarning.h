// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLineEdit;

/// Has the box of a name say, by a mark in it and by its tip, what a comma in the name will do: the
/// entry is stored as it stands, and from then on its fields are read shifted. The box keeps its
/// own tip as long as there is no comma.
void WarnOfCommas(QLineEdit& name);
