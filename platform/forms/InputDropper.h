// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

/// Throws away the clicks and keys that the user made while long work kept the event loop from
/// running, so that they do not start the work anew. Clicks on one widget, the close button, and
/// the Esc key are let through.
class InputDropper final : public QObject {
    Q_OBJECT
  public:
    /// Runs the waiting events once, dropping input for all widgets but `spared`.
    static void Run(const QWidget& spared);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    explicit InputDropper(const QWidget& spared) : spared_(spared) {}

    const QWidget& spared_;
};
