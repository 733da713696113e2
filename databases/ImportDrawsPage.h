// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "databases/import_session.h"

class OptionGroup;
class QGroupBox;
class QLabel;
class QLayout;
class RowTable;

/// The draws as they will be stored, a tick before each, and what is to be known of them.
class ImportDrawsPage final : public QWidget {
    Q_OBJECT
  public:
    explicit ImportDrawsPage(QWidget* parent = nullptr);

    void Show(const ImportSession& session);

    /// Whether one lottery for each era can be offered.
    void OfferEach(bool offered);

  Q_SIGNALS:
    /// Somebody sets or takes away the ticks of the draws in these rows of the source's table.
    void ticked(const std::vector<std::size_t>& rows, bool on);
    void erasChosen(EraChoice choice);

  private:
    QLayout* MakeFacts();
    void MakeEras();
    void ShowDraws(const ImportSession& session);
    void ShowEras(const ImportSession& session);

    RowTable* draws_;
    QLabel* remarks_;
    QGroupBox* eraBox_;
    QLabel* change_;
    OptionGroup* eras_;
    bool showing_ = false;
};
