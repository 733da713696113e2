// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

/// A push button that keeps its icon in the colour of its own text, which a skin may change. One
/// that stands out is filled with the desktop's or the skin's accent.
class IconButton final : public QPushButton {
    Q_OBJECT
  public:
    explicit IconButton(const QString& icon, QWidget* parent = nullptr);

    void StandOut();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void TakeColours();

    QString iconName_;
    bool standsOut_ = false;
};
