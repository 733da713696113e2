// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

#include "core/syndicate.h"

class QGridLayout;
class QLabel;
class QLineEdit;

/// The boxes for what is typed of a person, `Text1(0)` to `Text1(6)`: name, address of four lines,
/// phone, e-mail address.
class PersonBoxes {
  public:
    using Texts = std::array<std::string, memberDetails>;

    PersonBoxes();

    QLineEdit* Name() const { return boxes_.front(); }

    /// Put a title and its boxes into two columns of a layout.
    void AddName(QGridLayout& layout, int row, int column, QLabel* title) const;
    void AddAddress(QGridLayout& layout, int row, int column, QLabel* title) const;
    void AddContacts(QGridLayout& layout, int row, int column, QLabel* phone, QLabel* email) const;

    Texts Typed() const;
    void Show(const Texts& texts) const;
    void Clear() const;

    const std::array<QLineEdit*, memberDetails>& All() const { return boxes_; }

  private:
    QLineEdit* Box(int column) const { return boxes_.at(static_cast<std::size_t>(column)); }

    std::array<QLineEdit*, memberDetails> boxes_{};
};

/// Puts a title and its box side by side into a layout.
void AddTitled(QGridLayout& layout, int row, int column, QLabel* title, QLineEdit* box);
