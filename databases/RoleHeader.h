// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHeaderView>
#include <QStringList>
#include <vector>

class QComboBox;

/// The headings of a table, each with a chooser below its words of what stands in the column.
class RoleHeader final : public QHeaderView {
    Q_OBJECT
  public:
    explicit RoleHeader(QWidget* parent = nullptr);

    /// Makes a chooser for each column of the table, `Role(0)` from the left, in which that choice
    /// is chosen.
    void SetRoles(const QStringList& choices, const std::vector<int>& chosen);

    QComboBox* Chooser(int column) const { return choosers_.at(static_cast<std::size_t>(column)); }
    int ChooserCount() const { return static_cast<int>(choosers_.size()); }

    QSize sizeHint() const override;

    /// Puts each chooser into its section, wherever that has scrolled to.
    void PlaceChoosers();

  Q_SIGNALS:
    /// Somebody has chosen what stands in the column.
    void chosen(int column, int choice);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void AddChooser(const QStringList& choices, int choice);
    void BringIntoSight(int column);

    std::vector<QComboBox*> choosers_;
};
