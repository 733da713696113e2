// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/widgets/ElidingLabel.h"

/// The quiet line beside a form's buttons that says what the last action did, to screen readers
/// too. It empties itself as soon as the user does something else in the form.
class SaidLine final : public ElidingLabel {
    Q_OBJECT
  public:
    explicit SaidLine(QWidget* parent = nullptr);

    void Say(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
