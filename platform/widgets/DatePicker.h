// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateEdit>

#include "core/date.h"

/// A date with a calendar to drop down. Years typed with two digits fall in the hundred years that
/// end twenty years after `today`.
class DatePicker final : public QDateEdit {
    Q_OBJECT
  public:
    /// `format` is the display format, such as "ddd d MMM yyyy".
    DatePicker(const QString& format, Date today, QWidget* parent = nullptr);

    Date Value() const;
    void SetValue(Date date);

    void stepBy(int steps) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QDate InWindow(const QDate& date) const;
    void KeepTypedDay(Section typedInto);

    int lastYear_;
    bool twoDigits_;
    bool typing_ = false;
    bool movedOn_ = false;
    int typedDay_ = 0;
};
