// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class OptionGroup;
class QComboBox;
class QLabel;
class QLineEdit;

/// A lottery that is there already.
struct ExistingLottery {
    std::string file;
    std::string name;
};

/// Where the draws go: into a new lottery or into one that is there, and what that would do.
class ImportTarget final : public QWidget {
    Q_OBJECT
  public:
    explicit ImportTarget(QWidget* parent = nullptr);

    /// Offers these lotteries; a choice that is still there stays.
    void OfferLotteries(std::vector<ExistingLottery> lotteries);

    /// Proposes a new lottery of that name.
    void ProposeNew(const QString& name);

    /// Proposes the lottery of that database; false where there is none.
    bool ProposeExisting(const std::string& file);

    /// The lottery of that name, if there is one.
    const ExistingLottery* Named(const std::string& name) const;

    /// The name of the lottery of that database; null where there is none.
    QString NameOf(const std::string& file) const;

    bool IsNew() const;
    QString Name() const;

    /// The database of the lottery that is chosen; empty for a new one.
    std::string Database() const;

    /// The name of the lottery that is chosen or made.
    QString LotteryName() const;

    void ShowEffect(const QString& words);

  Q_SIGNALS:
    void changed();

  private:
    std::vector<ExistingLottery> lotteries_;
    OptionGroup* kinds_;
    QLineEdit* name_;
    QComboBox* existing_;
    QLabel* effect_;
};
