// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

/// What is shown over something that opens an address: its words and below them the address as it
/// stands, so that whoever clicks knows where that leads. No markup in the address takes effect; an
/// empty one, and one of nothing but "http://", leaves the words alone.
QString TipWithAddress(const QString& words, const QString& address);

/// Shows the address of a button below the words of its tool-tip, which stays as it is, and tells
/// it to screen readers.
class AddressTip final : public QObject {
    Q_OBJECT
  public:
    /// `opener` has its tool-tip, and owns this.
    explicit AddressTip(QWidget* opener);

    void SetAddress(const QString& address);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& opener_;
    QString address_;
};
