// SPDX-License-Identifier: GPL-3.0-or-later
// The inputs that the dialogs of reports and of slips have in common.
#pragma once

#include "platform/system/Services.h"
#include "printing/page.h"

class ComboList;
class QLineEdit;

/// "Combo1": the printers, the current one chosen when `ListPrinters` has run.
ComboList* MakePrinterList();
void ListPrinters(const Services& services, ComboList& printers);

/// Makes the chosen printer the current one.
void ChoosePrinter(const Services& services, const ComboList& printers);

/// A list that a printer may not heed, with its entries.
ComboList* MakeOptionList(const QString& name, const QStringList& entries);

/// "Combo2", with "Standard" chosen.
ComboList* MakeQualityList();
PrintQuality QualityOf(const ComboList& qualities);

/// The number at the head of a box.
double NumberIn(const QLineEdit& box);
