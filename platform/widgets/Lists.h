// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QPersistentModelIndex>
#include <functional>
#include <utility>

/// A list box whose `clicked` runs once for each change of selection, by mouse, keyboard or code,
/// and once for a click on the entry already chosen. What is too long for a row ends in dots.
class ListBox final : public QListWidget {
    Q_OBJECT
  public:
    explicit ListBox(QWidget* parent = nullptr);

    /// The chosen entry, from 0; -1 where none is.
    int Index() const;

    /// Chooses an entry, which runs its click where that is a change; -1 chooses none, without a
    /// click. An entry that the list does not have is a `Failure`.
    void SetIndex(int index);

    /// What the tip over a row says; without this it is the row's text where that is cut.
    void SetTips(std::function<QString(int row)> tips) { tips_ = std::move(tips); }

  Q_SIGNALS:
    void clicked();

  protected:
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

  private:
    void FollowSelection();
    QString TipOf(const QModelIndex& index) const;

    std::function<QString(int row)> tips_;
    QPersistentModelIndex chosen_;
    QPersistentModelIndex pressed_;
    bool changedByThisPress_ = false;
};

/// The same as a box that drops down. Entries added to an empty box leave nothing chosen.
class ComboList final : public QComboBox {
    Q_OBJECT
  public:
    explicit ComboList(QWidget* parent = nullptr);

    int Index() const { return currentIndex(); }
    void SetIndex(int index);

    void showPopup() override;

  Q_SIGNALS:
    void clicked();

  private:
    void FollowIndex(int index);

    QPersistentModelIndex chosen_;
    int indexAtPopup_ = -1;
    bool removingChosen_ = false;
};
