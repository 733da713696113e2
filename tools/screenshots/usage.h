// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"

/// Works in the form as its user does, where it would look empty otherwise. `hasSamples`: the draw
/// databases are the supplied ones, so that the studio's saved entries can be checked.
void Use(Form& form, bool hasSamples);
