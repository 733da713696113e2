// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QAbstractItemView;

/// Gives a table a context menu that copies and selects, with the keys for both. `copy` puts what
/// is selected on the clipboard.
void AddCopyMenu(QAbstractItemView& table, const std::function<void()>& copy);
