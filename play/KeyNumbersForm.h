// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "play/RetryingForm.h"
#include "play/key_bars.h"

class BarInput;

/// Key numbers: one, two or three numbers of the user's choice in every line, all others dealt
/// around them. What differs between the three forms stands in a table by their number of keys.
class KeyNumbersForm : public RetryingForm {
    Q_OBJECT
  protected:
    KeyNumbersForm(Program& program, int keyCount, QWidget* parent);

    bool MayGenerate() override;
    void ResetInputs() override;
    void DatabaseLoaded() override;
    void MakeLines() override;
    void PlayLotto() override;
    GeneratorStyle Style() const override;

  private:
    QLayout* BuildBars();
    BarInput* BuildBar(int bar, const QString& meaning);
    void ShowBars();

    key_numbers::KeyBars keys_;
    std::vector<BarInput*> bars_;
};

/// One key number.
class P1Key final : public KeyNumbersForm {
    Q_OBJECT
  public:
    P1Key(Program& program, QWidget* parent) : KeyNumbersForm(program, 1, parent) {}
};

/// Two key numbers.
class P2KeyNum final : public KeyNumbersForm {
    Q_OBJECT
  public:
    P2KeyNum(Program& program, QWidget* parent) : KeyNumbersForm(program, 2, parent) {}
};

/// Three key numbers.
class P3KeyNum final : public KeyNumbersForm {
    Q_OBJECT
  public:
    P3KeyNum(Program& program, QWidget* parent) : KeyNumbersForm(program, 3, parent) {}
};
