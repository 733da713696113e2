// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// What the main window shows while the info panels are hidden: a word of welcome and the first
/// steps.
class Welcome final : public QWidget {
    Q_OBJECT
  public:
    explicit Welcome(QWidget* parent);

    /// Entries are generated of a lottery, so where there is not any the first step is to create
    /// one.
    void SuitLotteries(bool any);

  Q_SIGNALS:
    /// Somebody wants to take the step that this menu entry stands for.
    void stepChosen(const QString& menuEntry);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* Button(const char* menuEntry) const;
};
