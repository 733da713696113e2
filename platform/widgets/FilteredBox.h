// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/// A box that takes only some characters, from the keyboard, the clipboard or the mouse.
///
/// A key that is not taken leaves a marked text as it is. Of what is pasted the rest is dropped,
/// and line ends become a blank. What stands in the box already is not held to the rule.
class FilteredBox : public QLineEdit {
    Q_OBJECT
  public:
    explicit FilteredBox(QWidget* parent = nullptr);

    /// Takes only these characters; an empty text stands for all.
    void SetTaken(const QString& characters) { taken_ = characters; }

    /// Turns a character that comes in into another, before it is looked at.
    void SetReplaced(QChar from, QChar to);

    /// Shows a text as it stands, whatever is taken.
    void Show(const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    class Rule;

    QString Taken(const QString& incoming) const;

    QString taken_;
    QChar replaced_;
    QChar replacement_;
    QString told_;  // the last text of `Show`
};
