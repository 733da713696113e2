// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>

#include "core/date.h"

/// What the locale says about dates and money, for the core.
Region RegionOf(const QLocale& locale);

QDate ToQDate(Date date);
Date FromQDate(const QDate& date);
