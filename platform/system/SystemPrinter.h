// SPDX-License-Identifier: GPL-3.0-or-later
// The printers of the system, through Qt; the only door to them.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "platform/system/PrintTask.h"

/// Their names in the system's order.
QStringList SystemPrinterNames();

/// The name of the default one; empty where there is none.
QString DefaultSystemPrinter();

/// Prints at once, on the printer's own paper where the task asks for none, with the least margins
/// that the printer has. One that is gone or refuses is a `Failure` with its name and the reason.
void PrintOnSystemPrinter(const QString& name, const PrintTask& task,
                          const PageCorrection& correction);

/// Asks for printer, paper and sheets by the system's dialog, and prints as chosen there. Returns
/// the name of the printer; none where the user has thought better of it.
QString PrintBySystemDialog(QWidget* parent, const PrintTask& task,
                            const std::function<PageCorrection(const QString&)>& correctionOf);

/// The value of the print system's option "print-quality".
QString QualityOption(PrintQuality quality);
