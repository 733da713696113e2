// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "databases/import_session.h"
#include "platform/forms/Form.h"

class ImportDrawsPage;
class ImportLeftOutPage;
class ImportReadingPage;
class ImportSources;
class ImportTarget;
class QMimeData;
class QPushButton;
class QStackedWidget;
class QTabWidget;

/// Makes a lottery of results in any tabular text, or adds to one what it lacks: from a file, the
/// clipboard or a web address.
///
/// What the source holds is understood by itself and shown; nothing is written before the user says
/// so. A draw that stands in a database is never changed, and the file as it was is kept.
class ImportDraws final : public Form {
    Q_OBJECT
  public:
    ImportDraws(Program& program, QWidget* parent);

    void Load() override;

    /// Shows what the file holds; where it holds no draws the form says so.
    void TakeFile(const QString& path);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void MakePages();
    void ConnectSources();
    void ConnectPages();
    QLayout* MakeBodyLayout();
    QLayout* MakeActions();

    void OfferLotteries();
    void ReadFormats();
    void OfferAddresses();

    void ChooseFile();
    void TakeClipboard();
    void TakeAddress(const QString& address);
    void Update(int place);
    std::optional<std::string> Fetch(const QString& address);
    void LetNothingBePressed(bool fetching);
    void OpenTable(const QString& html, const QString& text);

    void ShowNewSource();
    void ProposeTarget();
    void ShowSession();
    void ShowHint(const QString& refusal);
    QString FormatProblems() const;
    void ShowEffect();
    QString EffectOfNew(const std::vector<PlannedLottery>& lotteries, bool& possible) const;
    void NameLeftOut();

    void Import();
    QString MakeLotteries();
    QString AddToLottery();
    std::string CreateDatabase(const PlannedLottery& lottery);
    void RememberInto(const std::string& database);

    ImportSession session_;
    ImportFormats formats_;
    std::vector<ImportFormat> addresses_;   // those of the formats that can be fetched again
    std::optional<MergedDatabase> merged_;  // what would become of the lottery that is chosen
    ImportSources* sources_;
    QStackedWidget* stack_;
    QLabel* hint_;
    QTabWidget* pages_;
    ImportDrawsPage* drawsPage_;
    ImportReadingPage* readingPage_;
    ImportLeftOutPage* leftOutPage_;
    ImportTarget* target_;
    QPushButton* import_;
    QPushButton* close_;
};
