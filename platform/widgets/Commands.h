// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that many forms have a button for: in every form they look alike and have the same
// keys.
#pragma once

#include <QString>

class QBoxLayout;
class QPushButton;
class QWidget;

enum class Command { Generate, Save, Print, Close, Cancel, Delete, Up, Down };

/// The button of a command for which the design tells no caption, only a tool-tip: a picture, one
/// word and the command's keys. The tool-tip is the accessible name too. Generate is the form's
/// main button and stands out.
QPushButton* MakeCommandButton(const QString& name, Command command, const QString& toolTip,
                               QWidget* parent = nullptr);

/// Gives a button with a caption of its own the command's keys: F5 and Ctrl+Return generate, Ctrl+S
/// saves, Ctrl+P prints; the other commands have none. Returns the button.
QPushButton* WithKeysOf(Command command, QPushButton* button);

/// A button with a caption of its own that deletes something: it has the delete icon.
QPushButton* MakeDeletingButton(const QString& name, const QString& caption,
                                QWidget* parent = nullptr);

/// Adds a deleting button to a row, far enough from its neighbour not to be hit by mistake.
void AddApart(QBoxLayout& row, QPushButton* deleting);
