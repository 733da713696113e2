// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The tool-tip of what opens an address: its words and below them the address as it stands, so
/// that whoever clicks knows where that leads. No markup in the address takes effect; an empty one,
/// and one of nothing but "http://", leaves the words alone.
QString AddressTip(const QString& words, const QString& address);
