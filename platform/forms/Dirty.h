// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "platform/system/MessageBoxes.h"

/// The flag of a form that edits data: 0, or -1 while it holds changes that are not saved.
class Dirty {
  public:
    void Set() { flag_ = -1; }
    void Clear() { flag_ = 0; }
    bool IsSet() const { return flag_ != 0; }

    /// Whether the form may close: where there are changes it asks with the warning, and No or
    /// Cancel keeps it open.
    bool MayClose(MessageBoxes& messages, QWidget* form, const Message& warning) const;

  private:
    std::int16_t flag_ = 0;
};

/// The warning of the forms with a Save button: changes would be lost.
Message UnsavedWarning();
