// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/widgets/IconButton.h"

class QLabel;
class QPushButton;
class QWidget;

/// A control with its name, as tests and whoever drives the program find it.
template <typename Control>
Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

/// "Text1(3)": the name of a member of an array of controls.
QString Member(const QString& array, int index);

/// The caption with its "&" doubled, so that it is shown.
QString ShownCaption(const QString& caption);

/// A push button with a caption.
QPushButton* MakeButton(const QString& name, const QString& caption, QWidget* parent = nullptr);

/// A push button with an icon and a tool-tip, which is its accessible name too.
IconButton* MakeIconButton(const QString& name, const QString& icon, const QString& toolTip,
                           QWidget* parent = nullptr);

/// A label; `title` labels are large.
QLabel* MakeLabel(const QString& name, const QString& text, QWidget* parent = nullptr);
QLabel* MakeTitle(const QString& name, const QString& text, QWidget* parent = nullptr);

/// A label of several lines that wraps.
QLabel* MakeBody(const QString& name, const QString& text, QWidget* parent = nullptr);
