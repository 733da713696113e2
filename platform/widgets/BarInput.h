// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>

class ClickableLabel;
class QLabel;
class QScrollBar;

/// Where a bar begins and ends and what it starts with.
struct BarRange {
    int lowest;
    int highest;
    int value;
    int largeChange = 5;  ///< What a click beside the handle adds or takes away.
};

/// A number that a scroll bar sets. The value stands beside the bar, the ends of its range below
/// it.
///
/// With the focus, which a ring around the bar shows and a click on the value gives, typed digits
/// set the value too: a second digit within a second makes a number of two, one that the bar cannot
/// reach begins anew, and one below its range waits for the next digit. The wheel changes the value
/// by 1, upward more.
class BarInput final : public QWidget {
    Q_OBJECT
  public:
    /// The names of the bar and of the label of its value; `meaning` is spoken with the bar.
    BarInput(const QString& barName, const QString& valueName, const QString& meaning,
             const BarRange& range, QWidget* parent = nullptr);

    int Value() const;
    int Lowest() const;
    int Highest() const;
    void SetValue(int value);
    void SetHighest(int highest);

    /// What the label shows, which a form may word otherwise until the value changes.
    QString ShownText() const;
    void SetShownText(const QString& text);

    /// Shows or hides each part, as each has a name to be found by.
    void setVisible(bool visible) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    /// The value is another one, however that came about; the label shows it already.
    void changed(int value);

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    void LayOut();
    void ShowRange();
    std::array<QWidget*, 4> Parts() const;

    QScrollBar* bar_;
    ClickableLabel* shown_;
    QLabel* lowest_;
    QLabel* highest_;
    int turned_ = 0;  // what the wheel has turned short of a notch
};
