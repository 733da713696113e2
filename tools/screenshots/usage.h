// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/forms/Form.h"

/// Works in the form as its user does, where it would look empty otherwise. `hasSamples`: the draw
/// databases are the supplied ones, so that the studio's saved entries can be checked.
void Use(Form& form, bool hasSamples);

/// A further picture of a form, which shows another side of it.
struct FurtherView {
    const char* name;  ///< Stands behind the form's name.
    void (*turnTo)(Form&);
};

/// What the help pages show of a form beside its first picture.
std::vector<FurtherView> FurtherViews(const Form& form);
