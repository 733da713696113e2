// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Widgets.h"

#include <QLabel>

#include "platform/widgets/IconButton.h"

namespace {

constexpr int buttonHeight = 32;

/// What all push buttons have in common.
template <typename Button>
Button* Prepared(Button* button) {
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMinimumHeight(buttonHeight);
    return button;
}

}  // namespace

QString Member(const QString& array, int index) {
    return QStringLiteral("%1(%2)").arg(array).arg(index);
}

QString ShownCaption(const QString& caption) {
    QString shown = caption;
    return shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QPushButton* MakeButton(const QString& name, const QString& caption, QWidget* parent) {
    return Prepared(Named(new QPushButton(ShownCaption(caption), parent), name));
}

IconButton* MakeIconButton(const QString& name, const QString& icon, const QString& toolTip,
                           QWidget* parent) {
    IconButton* button = Prepared(Named(new IconButton(icon, parent), name));
    button->setMinimumWidth(buttonHeight + 8);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip.trimmed());
    return button;
}

QLabel* MakeLabel(const QString& name, const QString& text, QWidget* parent) {
    auto* label = Named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QLabel* MakeTitle(const QString& name, const QString& text, QWidget* parent) {
    QLabel* label = MakeLabel(name, text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel* MakeBody(const QString& name, const QString& text, QWidget* parent) {
    QLabel* label = MakeLabel(name, text, parent);
    label->setWordWrap(true);
    return label;
}
