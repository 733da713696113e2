// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What a form's close button does while `Busy` is set.
enum class CloseWhileBusy {
    Waits,    ///< The form closes as soon as `Busy` falls.
    Ignored,  ///< The click is lost.
    Closes,   ///< The form closes at once.
};

/// What the buttons of a form that makes lines do about `Busy`. It differs from form to form.
struct BusyRules {
    bool filtersWait = true;       ///< The filter buttons do nothing while it is set.
    bool printAndSaveWait = true;  ///< Print and save do nothing while it is set.
    CloseWhileBusy close = CloseWhileBusy::Waits;
    bool generateWaits = true;  ///< Generate does nothing while it is set.
    /// Generate sets it, with the hourglass, from its first step to its last. Where not, a form
    /// that sets it for a part of its work does so itself.
    bool generateSets = true;
};
