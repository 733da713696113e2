// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <vector>

class QRadioButton;

/// Option buttons of which one is chosen. `clicked` runs once for each choice, by mouse, keyboard
/// or code, and once for a click on the option chosen already.
class OptionGroup final : public QObject {
    Q_OBJECT
  public:
    explicit OptionGroup(QObject* parent) : QObject(parent) {}

    /// Adds an option; the first one is chosen. All of them go into one parent widget.
    QRadioButton* Add(const QString& name, const QString& caption);

    QRadioButton& Option(int index) const { return *options_.at(static_cast<std::size_t>(index)); }

    /// The chosen option, from 0.
    int Index() const;

  Q_SIGNALS:
    void clicked();

  private:
    std::vector<QRadioButton*> options_;
    bool chosenAtPress_ = false;
};
