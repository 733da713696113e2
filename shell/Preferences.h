// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "platform/forms/Form.h"
#include "shell/stored_preferences.h"

class ColourSample;
class OptionGroup;
class QCheckBox;
class QLabel;
class QLayout;
class QLineEdit;

/// The user's part of the settings: how strict the filters are, background pictures and colours,
/// and the web links.
///
/// A picked colour stands in the settings at once, all else when it is saved, and only saving
/// writes the file: whoever opens the form reads the settings anew when it has closed.
class Preferences final : public Form {
    Q_OBJECT
  public:
    Preferences(Program& program, QWidget* parent);

    void Load() override;

  private:
    QLayout* MakeFilters();
    QWidget* MakeStrength(std::size_t filter);
    QLayout* MakeLinks();
    QLayout* MakePictures();
    QLayout* MakeColours();
    QLayout* MakeActions();
    ColourSample* MakeSample(std::size_t colour);

    void ShowStrengths();
    void ShowLinks();
    void ShowColours();
    void TakeBritishWords();

    std::int32_t PickColour(const QColor& current);
    void ChangeColour(std::size_t colour);
    void ResetTheColours();
    EnteredPreferences Entered() const;
    void Save();
    void ResetAll();

    std::array<OptionGroup*, filterStrengths.size()> strengths_{};
    std::array<QLineEdit*, changeableLinks> captions_{};
    std::array<QLineEdit*, changeableLinks> addresses_{};
    QCheckBox* pictures_;
    QCheckBox* colours_;
    QLabel* coloursTitle_;
    QLabel* pickPrompt_;
    std::array<ColourSample*, colourSlots.size()> samples_{};
};
