// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

/// What the forms of hot and cold numbers have in common.
inline const QColor red(192, 0, 0);
inline const QColor blue(0, 0, 192);

constexpr const char* hotOption = "Option1(0)";
constexpr const char* coldOption = "Option1(1)";
