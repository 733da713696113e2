// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/forms/Form.h"
#include "printing/page.h"

class ComboList;
class ListBox;
class QLabel;
class QLayout;
class QLineEdit;

/// Asks for printer, quality, template and number of lines before slips are printed. It is only
/// hidden when it is answered, so that the answer can be asked of it.
class PrintTickets final : public Form {
    Q_OBJECT
  public:
    PrintTickets(Program& program, QWidget* parent);

    void Load() override;

    void SetLines(int count);
    bool HasTemplates() const;

    /// Chooses the template of that file. One that is not listed is a `Failure`.
    void ChooseTemplate(const std::string& file);

    /// Whether the user wants to print, and what.
    bool IsOk() const;
    double Lines() const;
    std::string TemplateFile() const;
    PrintQuality Quality() const;

  private:
    QLayout* MakePrinter();
    QLayout* MakeTemplate();
    QLayout* MakeActions();
    void AdjustPrinter();
    void Print();
    void Cancel();

    ComboList* printers_;
    ComboList* quality_;
    ListBox* templates_;
    ListBox* files_;  // of the templates, by the same indices
    QLineEdit* lines_;
    QLabel* answer_;
};
