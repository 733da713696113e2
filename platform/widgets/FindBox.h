// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

class ListBox;

/// A box over a long list that hides the entries in which what is typed does not stand, whatever
/// its case. Down and Enter lead into the list, to its first entry that is left; Esc empties the
/// box. What is chosen in the list stays chosen.
class FindBox final : public QLineEdit {
    Q_OBJECT
  public:
    explicit FindBox(ListBox& list, QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void HideOthers(const QString& wanted);
    void EnterList();

    ListBox& list_;
};
