// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/widgets/FilteredBox.h"

/// A box that takes digits and Backspace from the keyboard; other keys that would write are
/// dropped. Delete works, and pasting drops what is no digit.
class NumberBox final : public FilteredBox {
    Q_OBJECT
  public:
    explicit NumberBox(QWidget* parent = nullptr);

    /// The number in the box as `LeadingWhole` reads it: 0 where there is none; what is too large
    /// is the largest `int`.
    int Value() const;
};
