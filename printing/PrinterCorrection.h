// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/Form.h"
#include "printing/page.h"

class FilteredBox;
class QGridLayout;
class QLabel;

/// Asks by how much a printer is off, and keeps it for that printer. Slips and the test print are
/// corrected by it, so that a template stays right on every printer.
class PrinterCorrection final : public Form {
    Q_OBJECT
  public:
    PrinterCorrection(Program& program, QWidget* parent);

    /// Shows the current printer.
    void Load() override;

    /// Shows the printer of that name.
    void ShowPrinter(const QString& printer);

  private:
    FilteredBox* AddBox(QGridLayout& boxes, int row, const QString& name, const QString& title,
                        const QString& unit);
    QLayout* MakeBoxes();
    QLayout* MakeActions();
    void Show(const PageCorrection& correction);
    void Keep();

    QString printer_;
    QLabel* title_;
    FilteredBox* moveAcross_;
    FilteredBox* moveDown_;
    FilteredBox* scaleAcross_;
    FilteredBox* scaleDown_;
};
