// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// The picture in at most 64 colours, those that stand for most of its pixels, which makes a file
/// of it several times smaller; texts and lines stay as sharp as they are.
QImage InFewColours(const QImage& picture);
