// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "shell/own_lottery.h"

class WelcomeLink;

/// What the main window shows while the info panels are hidden: a word of welcome and the first
/// steps. What would lead nowhere is not offered.
class Welcome final : public QWidget {
    Q_OBJECT
  public:
    explicit Welcome(QWidget* parent);

    /// Offers the steps that these lotteries allow, and the check where entries are saved.
    void Suit(const LotteriesAtHand& lotteries, bool entriesSaved);

    /// Gives the focus to the first step.
    void TakeFocus();

  Q_SIGNALS:
    /// Somebody takes the step that this menu entry stands for.
    void stepChosen(const QString& menuEntry);

    /// Somebody wants to add a draw to the lottery of that place in the lists.
    void drawWanted(int lottery);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    WelcomeLink* AddLink(const char* menuEntry, const char* picture);
    WelcomeLink* AddStep(const char* menuEntry, const char* picture, const QString& caption,
                         const QString& description);
    void WordDraw(const OwnLottery& lottery);

    std::vector<WelcomeLink*> links_;
    WelcomeLink* setUp_;
    WelcomeLink* addDraw_;
    WelcomeLink* generate_;
    WelcomeLink* check_;
    WelcomeLink* store_;
    int lottery_ = 0;  // to which a draw would be added
};
