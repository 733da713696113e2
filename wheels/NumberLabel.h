// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// One number of a board: a label that can be selected, by mouse, space bar or in code, and tells a
/// screen reader so.
class NumberLabel final : public QLabel {
    Q_OBJECT
  public:
    explicit NumberLabel(int number, QWidget* parent = nullptr);

    int Number() const { return number_; }
    bool IsSelected() const { return selected_; }
    void SetSelected(bool selected);

  Q_SIGNALS:
    void changed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    int number_;
    bool selected_ = false;
};
