// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>
#include <memory>

/// Opens a file of the user's own configuration, be it missing, or none: where what bears its name
/// is no file of a size that settings have, but a device, a pipe, a folder, it is neither read nor
/// written, as that could take for ever.
std::unique_ptr<QSettings> OpenOwnSettings(const QString& path,
                                           QSettings::Format format = QSettings::IniFormat);
