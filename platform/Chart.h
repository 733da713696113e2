// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <memory>

/// A bar chart whose figures can be read: by tests, by screen readers, by copying (Ctrl+C) and by
/// resting the mouse over a bar.
///
/// Rows and columns count from 1, others are a `Failure`; a column is a series, a row a place on
/// the horizontal axis. With one row each column is a bar of its own with the column's label below
/// it; with more the bars of a row stand side by side above its label. The chart is light on every
/// desktop.
class Chart final : public QWidget {
    Q_OBJECT
  public:
    Chart(int rowCount, int columnCount, QWidget* parent = nullptr);
    ~Chart() override;

    Q_INVOKABLE QString title() const;
    Q_INVOKABLE int rowCount() const;
    Q_INVOKABLE int columnCount() const;
    Q_INVOKABLE QString rowLabel(int row) const;
    Q_INVOKABLE QString columnLabel(int column) const;
    Q_INVOKABLE double value(int row, int column) const;

    void SetTitle(const QString& title);
    void SetRowLabel(int row, const QString& label);
    void SetColumnLabel(int column, const QString& label);
    void SetValue(int row, int column, double value);

    /// Ends of the vertical axis; without them it reaches from 0 to the furthest values.
    void SetRange(double lowest, double highest);

    /// Draws what has been set.
    void Refresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    QString FiguresOfPlace(int place) const;
    QString FiguresAsTable() const;
    void NameItself();
    void ShowFocus(bool focused);

    struct Figures;  // keeps the plotting library out of every form
    std::unique_ptr<Figures> figures_;
};
