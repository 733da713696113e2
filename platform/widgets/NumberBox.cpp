// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/NumberBox.h"

#include <QKeyEvent>
#include <QValidator>

#include "core/text.h"
#include "platform/system/TextConversion.h"

namespace {

bool IsDigit(QChar character) {
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// Drops what is no digit from whatever comes in, by pasting or dragging too.
class DigitsOnly final : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override {
        QString digits;
        int newPosition = position;
        for (qsizetype i = 0; i < input.size(); ++i) {
            if (IsDigit(input[i])) {
                digits += input[i];
            } else if (i < position) {
                --newPosition;
            }
        }
        input = digits;
        position = newPosition;
        return Acceptable;
    }
};

}  // namespace

NumberBox::NumberBox(QWidget* parent) : QLineEdit(parent) {
    setValidator(new DigitsOnly(this));
    setInputMethodHints(Qt::ImhDigitsOnly);
}

int NumberBox::Value() const { return LeadingWhole(FromQString(text())); }

void NumberBox::keyPressEvent(QKeyEvent* event) {
    // A dropped key leaves a marked text as it is, which the validator alone could not do.
    const QString typed = event->text();
    const bool command = event->modifiers().testFlag(Qt::ControlModifier);
    if (!command && !typed.isEmpty() && typed[0].isPrint() && !IsDigit(typed[0])) return;
    QLineEdit::keyPressEvent(event);
}
