// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

class NumberLabel;

/// A board of labels with the numbers from 1 on. A click selects a number or takes it back; with
/// the keyboard the arrows, Home and End move over the board and the space bar does what a click
/// does. A selected number is white on black, another one black on pale red, on every desktop.
class NumberBoard final : public QWidget {
    Q_OBJECT
  public:
    /// The labels are `array(1)` onward.
    NumberBoard(const QString& array, int count, QWidget* parent = nullptr);

    bool IsSelected(int number) const;

    /// Selects a number, hidden or not, or takes it back.
    void Select(int number, bool selected);

    /// How many are selected, hidden ones too.
    int SelectedCount() const;

    /// Shows the numbers up to `highest`; those above are hidden and no longer selected.
    void ShowUpTo(int highest);

  Q_SIGNALS:
    /// A number was selected or taken back, by whatever cause.
    void changed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    NumberLabel& At(int number) const;
    int Target(int from, int key) const;
    int HighestShown() const;
    void MoveTo(int number);
    void MakeCurrent(int number);

    std::vector<NumberLabel*> labels_;
    int current_ = 1;  ///< The one that the Tab key leads to.
};
