// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>
#include <optional>

/// The name of a plain cross, which is drawn and looks the same on every desktop.
constexpr const char* crossIcon = "cross";

/// The desktop's icon of that name; Breeze's where the desktop's theme has none. Glyphs are drawn
/// in the colour given, or in that of the desktop's text.
QIcon ThemeIcon(const QString& name, std::optional<QColor> colour = std::nullopt);
