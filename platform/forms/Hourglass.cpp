// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Hourglass.h"

#include <QCursor>
#include <QGuiApplication>

Hourglass::Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

Hourglass::~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
