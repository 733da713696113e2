// SPDX-License-Identifier: GPL-3.0-or-later
// What a sheet of notes is made of: a checklist, and a note of several lines.
#pragma once

#include <QObject>
#include <QString>
#include <array>

#include "core/notes.h"

class QCheckBox;
class QGridLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// Eight items to tick, a button each to clear one, and a box with a button to add one.
class Checklist final : public QObject {
    Q_OBJECT
  public:
    using Items = std::array<ChecklistItem, 8>;

    /// How many rows of the layout they take: the items, a row that takes spare height, the box.
    static constexpr int rows = 10;

    /// Puts the controls into columns 0 and 1 of the layout from row `firstRow` on.
    Checklist(QWidget* parent, QGridLayout& layout, int firstRow = 0);

    /// What the tips over the box and its button say.
    void SetTips(const QString& box, const QString& add);

    Items Shown() const;
    void Show(const Items& items);

    /// Sets the captions alone.
    void SetCaptions(const std::array<QString, 8>& captions);

    /// The width in which every caption is read whole.
    int WidestItem() const;

  Q_SIGNALS:
    /// An item was clicked or cleared, or the button to add one pressed.
    void changed();

  private:
    void BuildItem(QWidget* parent, QGridLayout& layout, int row, std::size_t index);
    void SetCaption(std::size_t index, const QString& caption);
    void AddItem();
    void ClearItem(std::size_t index);

    std::array<QString, 8> captions_;
    std::array<QCheckBox*, 8> items_{};
    std::array<QPushButton*, 8> clear_{};
    QLineEdit* newItem_ = nullptr;
    QPushButton* add_ = nullptr;
};

/// Shows a note. One with a line that nobody could read, longer than a sheet of paper is full, is
/// shown cut and cannot be typed in; its tip says so, and `NoteIn` gives it back whole.
void ShowNote(QPlainTextEdit& box, const std::string& note);

/// The text of a note, with CR LF for its line ends; hard blanks stay what they are.
std::string NoteIn(const QPlainTextEdit& note);
