// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

enum class Sign { Information, Exclamation, Question };
enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

/// A message box as the system words it: title, text with its line ends and trailing blanks, sign,
/// buttons.
struct Message {
    QString title;
    QString text;
    Sign sign = Sign::Information;
    Buttons buttons = Buttons::Ok;
    bool discards = false;  ///< Yes or OK deletes something or throws it away.
    bool operator==(const Message&) const = default;
};

/// The one door to modal questions.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;

    /// Shows the message over `parent` and waits for the answer; closing the box is Cancel or No
    /// where there is such a button, else Ok. Enter is Yes or Ok, but Cancel or No where the
    /// message discards something.
    virtual Answer Show(QWidget* parent, const Message& message) = 0;
};

/// Message boxes on the desktop.
class DesktopMessageBoxes final : public MessageBoxes {
  public:
    Answer Show(QWidget* parent, const Message& message) override;
};
