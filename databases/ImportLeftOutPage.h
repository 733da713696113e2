// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "databases/import_session.h"

class QPushButton;
class RowTable;

/// What of a source does not go into the lottery, and why; to be copied.
class ImportLeftOutPage final : public QWidget {
    Q_OBJECT
  public:
    explicit ImportLeftOutPage(QWidget* parent = nullptr);

    /// Shows the rows left out, with the draws that the database has otherwise; without a database
    /// there are none of these. Returns how many there are that are worth a look.
    int Show(const ImportSession& session, const MergedDatabase* merged);

  Q_SIGNALS:
    void copied(int rows);

  private:
    void CopyAll();

    RowTable* rows_;
    QPushButton* copy_;
};
