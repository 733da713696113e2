// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/OneLine.h"

#include <QLineEdit>
#include <QValidator>
#include <utility>

namespace {

bool EndsLine(QChar character) {
    return QStringLiteral("\r\n\f\v").contains(character) || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

/// The text on one line; `position` moves with what stands before it.
QString Joined(const QString& input, int& position) {
    QString line;
    int newPosition = position;
    bool ended = false;  // a line end was met and nothing behind it yet
    for (qsizetype i = 0; i < input.size(); ++i) {
        if (EndsLine(input[i])) {
            ended = true;
            if (i < position) --newPosition;
            continue;
        }
        if (std::exchange(ended, false) && !line.isEmpty()) {
            line += QLatin1Char(' ');
            if (i < position) ++newPosition;
        }
        line += input[i];
    }
    position = newPosition;
    return line;
}

/// A text box asks its validator whatever the text comes from: keys, clipboard or mouse.
class OneLine final : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override {
        input = Joined(input, position);
        return Acceptable;
    }
};

}  // namespace

QString OnOneLine(const QString& text) {
    int position = 0;
    return Joined(text, position);
}

void KeepTextBoxesToOneLine(const QWidget& parent) {
    const auto boxes = parent.findChildren<QLineEdit*>();
    for (QLineEdit* box : boxes) {
        if (box->validator() == nullptr) box->setValidator(new OneLine(box));
    }
}
