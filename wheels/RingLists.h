// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "wheels/ring_wheels.h"

class ComboList;
class QGridLayout;
class QLabel;

/// The two lists of a wheel without letters, each with its title: `Combo1`, how many numbers, and
/// `Combo2`, at what interval. They open with the first of each chosen.
class RingLists final : public QWidget {
    Q_OBJECT
  public:
    RingLists(QLabel* numbersTitle, QLabel* intervalTitle, QWidget* parent = nullptr);

    /// What is chosen.
    wheels::Ring Choice() const;

    /// Adds a title and what it stands before, below the lists.
    void AddRow(QLabel* title, QWidget* widget);

  Q_SIGNALS:
    /// A choice in the list of that name, of the entry chosen already too.
    void numbersChosen();
    void intervalChosen();

  private:
    QGridLayout* rows_;
    ComboList* numbers_;
    ComboList* interval_;
};
