// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "databases/draw_records.h"
#include "platform/forms/Form.h"

class ListBox;
class QLayout;
class QLineEdit;
class QPushButton;
class QTimer;

/// What the forms that download draws have in common: one run an opening, which is told line by
/// line in a list with the time since its start, and the addresses, which can be changed.
///
/// A lottery's page goes to the work file, and when all of it has been converted its database is
/// replaced in one piece. A page that cannot be had leaves everything as it was; one that cannot
/// be converted is a `Failure`, the database as it was.
class DownloadForm : public Form {
    Q_OBJECT
  public:
    void Load() override;

  protected:
    /// An address that can be changed: its slot of the settings, its box and the box's label.
    struct Address {
        int slot;
        QLineEdit* box;
        QLabel* label;
    };

    /// The words that differ.
    struct Words {
        QString heading;
        QString instruction;
        QString download;
        QString saveQuestion;
    };

    /// A page to be had: its work file and its database are made out of it by the two functions.
    struct Page {
        QString lottery;
        QString address;
        std::size_t shortest;
        std::function<std::string(const std::string& page)> workText;
        std::string_view database;
        std::function<std::string(const std::string& workText, const std::string& source)> convert;
    };

    DownloadForm(Program& program, const QString& name, const Words& words, QWidget* parent);

    /// Title, what to do, the notice, and below them the `body`.
    void LayOut(QLayout* body);

    /// The parts that the body is made of.
    QLayout* MakeProgress();
    QLayout* MakeAddresses();
    void AddAddress(const QString& boxName, const QString& labelName, const QString& title,
                    int slot);

    /// Whether a run may begin; says why not.
    virtual bool MayDownload() { return true; }

    /// Fetches and converts one lottery after the other.
    virtual void DownloadAll() = 0;

    virtual SkinLabels Labels() const;

    /// Adds the text and the time to the list and chooses the line.
    void Announce(const QString& text);

    /// Adds a line that says what went wrong with the last page, and why as its tip; the choice
    /// stays where it is.
    void Complain(const QString& text);

    /// Fetches the page; nothing where it is too short, and why is said beside the buttons. While
    /// it takes long, so is how much of it has come.
    std::optional<std::string> Fetch(const Page& page);

    /// Writes the work file and then the database.
    void Replace(const Page& page, const std::string& bytes);

    DateRules Dates() const;

    const std::vector<Address>& Addresses() const { return addresses_; }

  private:
    void Download();
    void SaveAddresses();
    void Tick();
    void SayReceived(qsizetype bytes);

    QString saveQuestion_;
    QString heading_;
    QString instruction_;
    QPushButton* download_;
    QPushButton* close_;
    ListBox* progress_;
    QTimer* timer_;
    QString reason_;  // Why the last page that is missing is.
    std::int16_t elapsedTenths_ = 0;
    std::int16_t saidTenths_ = 0;  // When something was said last of a page under way.
    std::vector<Address> addresses_;
};
