// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>
#include <optional>
#include <string>

#include "wheels/proof.h"

class QLabel;

/// Says what the verifier finds beside the promise that a label makes: as its tool-tip and its
/// accessible description.
///
/// What holds for a wheel is told at once. Once filters have taken lines out of it, what is told is
/// the truth of the lines left, counted as soon as the program is idle, since a broken wheel of 49
/// takes longer than a click may.
class ToldProof final : public QObject {
    Q_OBJECT
  public:
    /// The state is that of the form that owns the label.
    ToldProof(QLabel& promise, const State& state);

    /// Another wheel is spoken of; the lines in the table, if any, are not its own.
    void TellWheel(const std::string& found);

    /// Lines of this wheel were made of these numbers and stand in the table.
    void LinesMade(wheels::Played played);

    /// The lines in the table are no longer of this wheel.
    void LinesGone();

    /// Filters have taken lines out of the table.
    void LinesTakenOut();

  private:
    void Tell(const std::string& text);
    void TellLeft();

    QLabel& promise_;
    const State& state_;
    QTimer idle_;
    std::string found_;
    std::optional<wheels::Played> played_;
};
