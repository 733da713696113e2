// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/faults/session.h"

/// Fills the folder of a session with something of everything, before it starts.
void UsedFolder(Session& session);

/// The same with a slip template.
void UsedFolderWithTemplate(Session& session);
