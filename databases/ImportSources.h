// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Where results come from: a file, the clipboard, a web address, or an address of before.
class ImportSources final : public QWidget {
    Q_OBJECT
  public:
    explicit ImportSources(QWidget* parent = nullptr);

    /// Offers the addresses that were imported before, each with the name of its lottery.
    void OfferAddresses(const std::vector<std::pair<QString, QString>>& lotteryAndAddress);

    /// Says what is there now; the whole text is the tool-tip where it is cut.
    void ShowSource(const QString& words);

    QString Address() const;

  Q_SIGNALS:
    void fileWanted();
    void clipboardWanted();
    void addressWanted(const QString& address);

    /// Somebody wants what is new at the address of that place in the list.
    void updateWanted(int place);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MakeButtons();

    QPushButton* chooseFile_;
    QPushButton* paste_;
    QLineEdit* address_;
    QPushButton* fetch_;
    QWidget* again_;
    QComboBox* addresses_;
    QPushButton* update_;
    QLabel* source_;
};
