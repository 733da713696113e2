// SPDX-License-Identifier: GPL-3.0-or-later
// A source on its way to a lottery: what it holds, how it is read, what is taken of it.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program_folder.h"
#include "databases/import_eras.h"
#include "databases/import_formats.h"
#include "databases/import_guess.h"
#include "databases/import_merge.h"

/// What is taken of draws whose rules changed.
enum class EraChoice { All, Newest, Each };

/// A draw with the tick before its row.
struct TickedDraw {
    ImportedDraw draw;
    bool ticked = true;
};

/// A new lottery that would be made.
struct PlannedLottery {
    std::string name;
    ImportRules rules;
    std::vector<ImportedDraw> draws;
};

/// Leads a source through the steps of an import; each choice of the user renews what follows it.
class ImportSession {
  public:
    explicit ImportSession(DateRules dates) : dates_(std::move(dates)) {}

    /// Takes a source, by the format that is remembered for it where there is one.
    void Open(std::string source, std::string bytes, const ImportFormats& formats);

    /// Takes none, and says why.
    void Refuse(std::string source, std::string refusal);

    // The user's choices.

    /// Reads the bytes so; where they are no such text all stays as it is.
    void ChooseEncoding(ImportEncoding encoding);
    void ChooseSeparator(ImportSeparator separator);
    void ChooseMapping(const ImportMapping& mapping);
    void ChooseRole(std::size_t column, ColumnRole role);
    void ChooseEras(EraChoice choice);
    void Tick(const std::vector<std::size_t>& rows, bool on);

    /// The web address, the bare name of the file, or "clipboard".
    const std::string& Source() const { return source_; }

    /// Why the source shows nothing at all; empty where it has rows.
    const std::string& Refusal() const { return refusal_; }

    /// Why its rows give no draws, and what to do; empty where they do.
    const std::string& Missing() const { return missing_; }

    bool HasRows() const { return table_.has_value(); }
    bool HasDraws() const { return !taken_.draws.empty(); }

    /// Whether the source is read by a format that was remembered.
    bool IsRemembered() const { return remembered_; }

    /// The database into which that format led, where the draws suit it; else empty.
    std::string RememberedDatabase(const ProgramFolder& folder) const;

    /// Whether the draws look like those of that database: more of them stand there already than
    /// stand there otherwise; of one that has none of their dates `known` decides.
    bool Suits(const ProgramFolder& folder, const std::string& file, bool known) const;

    ImportEncoding Encoding() const { return encoding_; }
    const ImportTable& Table() const { return *table_; }
    const ImportProposal& Proposal() const { return proposal_; }
    const ImportMapping& Mapping() const { return mapping_; }

    /// The headings of the columns, where the table has any and they are to be shown.
    const std::vector<std::string>& Headings() const;

    /// The games that the table holds; empty where it holds one.
    std::vector<std::string> Products() const;

    const std::vector<ImportEra>& Eras() const { return eras_; }
    EraChoice ChosenEras() const { return eraChoice_; }

    /// The draws that are taken, newest first, and the rows that are left out.
    const ImportedDraws& Taken() const { return taken_; }

    /// The same with the draws whose ticks the user has taken away.
    std::vector<TickedDraw> Offered() const;

    /// How many draws are left out because a lottery has no room for them.
    int TooMany() const;

    /// What becomes of the draws in new lotteries of that name: one, or one for each era.
    std::vector<PlannedLottery> NewLotteries(const std::string& name) const;

    /// What becomes of a database that has draws already. Where all of them are of the newest era,
    /// draws of older ones are not for it unless the user has said so.
    MergedDatabase MergeInto(const ProgramFolder& folder, const std::string& file) const;

    /// A name for the lottery; empty where nothing tells one.
    std::string ProposedName() const;

    /// What is to be remembered of an import into that database.
    ImportFormat FormatInto(const std::string& database) const;

  private:
    void Understand(std::optional<ImportSeparator> separator);
    bool TakeRemembered(const ImportFormats& formats);
    bool TakeFormatFor(const ImportFormats& formats);
    bool TakeFormat(const ImportFormat& format);
    void ReadAgain();
    void TakeEras();
    ImportedDraws DrawsOf(const ImportEra& era) const;

    DateRules dates_;
    std::string source_;
    std::string bytes_;
    std::string refusal_;
    std::string missing_;
    ImportEncoding encoding_ = ImportEncoding::Utf8;
    std::string text_;
    std::optional<ImportTable> table_;
    ImportProposal proposal_;
    ImportMapping mapping_;
    bool remembered_ = false;
    std::string rememberedSource_;
    std::string rememberedDatabase_;
    std::map<std::size_t, ImportedDraw> unticked_;  // by row of the table
    ImportedDraws all_;
    std::vector<ImportEra> eras_;
    EraChoice eraChoice_ = EraChoice::All;
    bool erasChosen_ = false;  // by the user
    ImportedDraws taken_;
};
