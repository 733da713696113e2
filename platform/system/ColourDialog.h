// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <optional>

class QWidget;

/// Asks for a colour without transparency in the system's dialog, at first `current`; nothing where
/// the user has thought better of it.
std::optional<QColor> ChooseColour(QWidget* parent, const QColor& current);
