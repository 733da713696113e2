// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/FilteredBox.h"

#include <QKeyEvent>
#include <QValidator>
#include <algorithm>

#include "platform/widgets/OneLine.h"

/// A box asks its validator about the whole text; only what is new in it is looked at, and nothing
/// of a text that the program sets, which leaves nothing to undo.
class FilteredBox::Rule final : public QValidator {
  public:
    explicit Rule(FilteredBox* box) : QValidator(box), box_(*box) {}

    State validate(QString& input, int& position) const override {
        const bool entered = box_.isUndoAvailable();
        if (entered && input != known_ && input != box_.told_) TakeNew(input, position);
        known_ = input;
        return Acceptable;
    }

  private:
    void TakeNew(QString& input, int& position) const {
        const qsizetype shorter = std::min(input.size(), known_.size());
        const auto difference =
            std::mismatch(input.begin(), input.begin() + shorter, known_.begin());
        const qsizetype before = difference.first - input.begin();
        qsizetype behind = 0;
        while (behind < shorter - before &&
               input[input.size() - 1 - behind] == known_[known_.size() - 1 - behind]) {
            ++behind;
        }
        const qsizetype length = input.size() - before - behind;
        const QString taken = box_.Taken(input.mid(before, length));
        if (position > before) {
            position = static_cast<int>(std::max(before, position - length + taken.size()));
        }
        input.replace(before, length, taken);
    }

    FilteredBox& box_;
    mutable QString known_;
};

FilteredBox::FilteredBox(QWidget* parent) : QLineEdit(parent) { setValidator(new Rule(this)); }

void FilteredBox::SetReplaced(QChar from, QChar to) {
    replaced_ = from;
    replacement_ = to;
}

void FilteredBox::Show(const QString& text) {
    told_ = text;
    setText(text);
}

QString FilteredBox::Taken(const QString& incoming) const {
    QString taken;
    const QString line = OnOneLine(incoming);
    for (QChar character : line) {
        if (!replaced_.isNull() && character == replaced_) character = replacement_;
        if (taken_.isEmpty() || taken_.contains(character)) taken += character;
    }
    return taken;
}

void FilteredBox::keyPressEvent(QKeyEvent* event) {
    // A dropped key leaves a marked text as it is, which the validator alone could not do.
    const QString typed = event->text();
    const bool command = event->modifiers().testFlag(Qt::ControlModifier);
    const bool writes = !command && !typed.isEmpty() && typed[0].isPrint();
    if (writes && Taken(typed).isEmpty()) return;
    QLineEdit::keyPressEvent(event);
}
