// SPDX-License-Identifier: GPL-3.0-or-later
// How the forms are laid out: what all of them do alike.
#pragma once

#include <QLabel>
#include <QString>
#include <initializer_list>
#include <vector>

class Grid;
class QHBoxLayout;
class QLayout;
class QVBoxLayout;
class QWidget;

/// The form's layout from top to bottom, with the margins and spaces of every form.
QVBoxLayout* MakeFormLayout(QWidget* form);

/// Lays the form out: title and explanation, below them the `body`, at the bottom the `actions`.
void LayOutForm(QWidget* form, QLabel* title, QLabel* explanation, QLayout* body, QLayout* actions);

/// The row of buttons at the bottom: `commands` from the left, at the right those behind them, the
/// closing one last. Between them stands the line of `Form::Say`.
QHBoxLayout* BuildActionRow(std::initializer_list<QWidget*> commands,
                            std::initializer_list<QWidget*> atRight);

/// The control with its title: a screen reader speaks the title's words.
template <typename Control>
Control* Titled(QLabel* title, Control* control) {
    control->setAccessibleName(title->text());
    title->setBuddy(control);
    return control;
}

/// A row of inputs, each centred on the column of the grid that it belongs to, the first on
/// `firstColumn`. What is hidden keeps its place.
QHBoxLayout* BuildAtColumns(const Grid& grid, int firstColumn, const std::vector<QWidget*>& inputs);

/// Lets the widget's place stay free while it is hidden, so that nothing beside it moves.
void KeepPlaceWhenHidden(QWidget* widget);
