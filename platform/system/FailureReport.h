// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Shows what ended the run, in one message box with one button, and returns when it is closed.
void ShowFailureReport(const QString& text);
