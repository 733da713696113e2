// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_guess.h"

#include <algorithm>
#include <map>
#include <utility>

#include "core/text.h"
#include "databases/import_balls.h"
#include "databases/import_draws.h"
#include "databases/import_names.h"
#include "databases/import_numbers.h"
#include "databases/import_rows.h"

namespace {

constexpr std::string_view lookedFor =
    " Rows are looked for that have a date and four to seven numbers each.";

/// Understands one table, question by question.
class Understanding {
  public:
    Understanding(const ImportTable& table, const DateRules& rules)
        : table_(table), rules_(rules), reader_(rules) {}

    ImportProposal Proposal() {
        proposal_.mapping.separator = table_.Separator();
        proposal_.mapping.columns.assign(table_.Columns(), ColumnRole::Nothing);
        Dates();
        if (dated_.columns.empty()) return Refused("No dates are to be seen in it.");
        Headings();
        Product();
        Order();
        Balls();
        if (!proposal_.refusal.empty()) return std::move(proposal_);
        Columns();
        SameDates();
        proposal_.title = TitleOfTable(table_, FirstRow(), proposal_.mapping);
        return std::move(proposal_);
    }

  private:
    void Note(ImportTopic topic, bool guess, std::string text) {
        proposal_.notes.push_back({.topic = topic, .guess = guess, .text = std::move(text)});
    }

    ImportProposal Refused(const std::string& what) {
        proposal_.refusal = what + std::string(lookedFor);
        return std::move(proposal_);
    }

    std::size_t FirstRow() const { return dated_.rows.empty() ? 0 : dated_.rows.front().row; }

    void Dates() {
        dated_ = FindDates(table_, reader_);
        for (const std::size_t column : dated_.columns) {
            proposal_.mapping.columns.at(column) = ColumnRole::Dated;
        }
    }

    void Headings() {
        const std::size_t row = FindHeading(table_, dated_);
        if (row == table_.Rows()) {
            Note(ImportTopic::Heading, false, "No row names the columns.");
            return;
        }
        proposal_.headings = HeadingTexts(table_, row, WidestDatedRow());
        headings_ = ReadHeadings(proposal_.headings);
        proposal_.mapping.hasHeading = !headings_.empty();
        Note(ImportTopic::Heading, false,
             "Row " + PlainDigits(table_.Line(row)) + " names the columns.");
    }

    std::size_t WidestDatedRow() const {
        std::size_t widest = 0;
        for (const DatedRow& row : dated_.rows) widest = std::max(widest, table_.Cells(row.row));
        return widest;
    }

    void Product() {
        const ProductChoice product = FindProduct(table_, dated_, headings_);
        if (product.column < 0) return;
        proposal_.mapping.productColumn = product.column;
        proposal_.mapping.product = product.product;
        const auto column = static_cast<std::size_t>(product.column);
        std::erase_if(dated_.rows, [&](const DatedRow& row) {
            return table_.Cell(row.row, column) != product.product;
        });
        Note(ImportTopic::Product, product.games > 1,
             "There are " + PlainDigits(static_cast<long long>(product.games)) + " games in it; " +
                 Quoted(product.product) + " has the most rows.");
    }

    void Order() {
        const OrderChoice order = ChooseOrder(table_, dated_, reader_, rules_);
        proposal_.mapping.dateOrder = order.order;
        Note(ImportTopic::Dates, order.guess, order.reason);
    }

    // Not all rows of a very long table, but runs of them, as counters are told by neighbours.
    std::vector<SampleRow> Sample() const {
        constexpr std::size_t most = 12000;
        std::vector<SampleRow> sample;
        const std::size_t rows = dated_.rows.size();
        for (std::size_t i = 0; i < rows; ++i) {
            if (rows > most && i >= most / 2 && i < rows - most / 2) continue;
            const auto date = reader_.DateOf(dated_.rows[i].written, proposal_.mapping.dateOrder);
            if (date) sample.push_back({.row = dated_.rows[i].row, .date = *date});
        }
        return sample;
    }

    void Balls() {
        balls_ = FindBallColumns(table_, Sample(), dated_.columns, headings_);
        choice_ = ChooseBalls(balls_, headings_);
        if (choice_.mains.empty()) {
            const auto seen = static_cast<long long>(choice_.numbersSeen);
            std::string what = "Dates are to be seen, but no numbers that were drawn.";
            if (seen > 0 && seen < 4) {
                what = "A row has " + PlainDigits(seen) +
                       " numbers; a lottery here has four to seven.";
            } else if (seen > 7) {
                what = "A row seems to have " + PlainDigits(seen) +
                       " numbers; a lottery here has four to seven.";
            }
            proposal_.refusal = what + std::string(lookedFor);
            return;
        }
        MainRoles();
        ExtraRoles();
    }

    void MainRoles() {
        ImportMapping& mapping = proposal_.mapping;
        mapping.picks = static_cast<int>(choice_.mains.size());
        bool list = false;
        bool glued = false;
        for (const std::size_t main : choice_.mains) {
            const BallColumn& column = balls_[main];
            list = column.part > 0;
            glued = column.glued;
            mapping.columns.at(column.column) = list ? ColumnRole::Numbers : ColumnRole::Number;
        }
        std::string how = choice_.byHeadings ? "by their heading" : "by their numbers";
        if (list) how += glued ? ", two digits each in one column" : ", in one column";
        std::string text = PlainDigits(mapping.picks) + " main numbers, told " + how + ".";
        if (choice_.countIsGuess && !choice_.extras.empty()) {
            text += " That the next one is a bonus ball is a guess.";
        } else if (choice_.countIsGuess) {
            text += " That none of them is a bonus ball is a guess.";
        }
        Note(ImportTopic::Numbers, glued || choice_.countIsGuess, text);
    }

    void ExtraRoles() {
        ImportMapping& mapping = proposal_.mapping;
        if (choice_.extras.empty()) {
            Note(ImportTopic::Extra, false, "No bonus or extra ball.");
            return;
        }
        mapping.extraFromSameDrum = choice_.sameDrum;
        mapping.keptExtra = 1;
        for (const std::size_t extra : choice_.extras) {
            ColumnRole& role = mapping.columns.at(balls_[extra].column);
            const bool kept = extra == choice_.extras.front();
            if (role == ColumnRole::Numbers) {
                if (kept) mapping.keptExtra = balls_[extra].part - mapping.picks;
            } else if (role == ColumnRole::Nothing) {
                role = kept ? ColumnRole::Extra : ColumnRole::OtherExtra;
                if (kept && balls_[extra].part > 0) mapping.keptExtra = balls_[extra].part;
            }
        }
        Note(ImportTopic::Extra, choice_.drumIsGuess, ExtraInWords());
    }

    std::string ExtraInWords() const {
        const BallColumn& kept = balls_[choice_.extras.front()];
        std::string text = choice_.sameDrum ? "A bonus ball from the main numbers: "
                                            : "An extra ball of its own: ";
        text += choice_.drumReason + ".";
        if (choice_.extras.size() > 1) {
            const auto others = static_cast<long long>(choice_.extras.size() - 1);
            text += " The first is kept" + NameOf(kept) + ", the other" +
                    (others > 1 ? "s are" : " is") + " not.";
        }
        if (kept.lowest == 0 && kept.highest <= 9) text += " An extra ball 0 is stored as none.";
        return text;
    }

    std::string NameOf(const BallColumn& column) const {
        if (column.column >= proposal_.headings.size()) return {};
        const std::string& heading = proposal_.headings[column.column];
        return heading.empty() ? std::string() : ", " + Quoted(heading);
    }

    // The columns that are no part of a draw.
    void Columns() {
        ImportMapping& mapping = proposal_.mapping;
        std::size_t unused = 0;
        for (std::size_t column = 0; column < mapping.columns.size(); ++column) {
            if (mapping.columns[column] != ColumnRole::Nothing) continue;
            ++unused;
            const bool named =
                column < headings_.size() && headings_[column].kind == HeadingKind::DrawNumber;
            if (named && mapping.drawNumberColumn < 0) {
                mapping.drawNumberColumn = static_cast<int>(column);
            }
        }
        if (unused == 0) return;
        Note(ImportTopic::Columns, false,
             PlainDigits(static_cast<long long>(unused)) +
                 (unused == 1 ? " column is" : " columns are") + " no part of the draws.");
    }

    // Whether two rows bear different numbers of draws, as far as there are any.
    bool NumberedApart(std::size_t one, std::size_t other) const {
        if (proposal_.mapping.drawNumberColumn < 0) return true;
        const auto column = static_cast<std::size_t>(proposal_.mapping.drawNumberColumn);
        return table_.Cell(one, column) != table_.Cell(other, column);
    }

    // A column that tells the draws of a date apart where the numbers of draws do not: its lowest
    // is the same on all of these dates and stands there once, as in "sequence" 0, 1, 2.
    bool CountsDraws(const ImportedDraws& all, std::size_t column) const {
        constexpr std::size_t enough = 4;
        std::map<Date, std::vector<int>> dates;
        for (const ImportedDraw& draw : all.draws) {
            dates[draw.date].push_back(PlainNumber(table_.Cell(draw.row, column)));
        }
        std::erase_if(dates, [](const auto& date) { return date.second.size() < 2; });
        int first = -1;
        for (const auto& [date, counts] : dates) {
            const int lowest = *std::min_element(counts.begin(), counts.end());
            if (lowest < 0 || lowest > 1 || (first >= 0 && lowest != first)) return false;
            if (std::count(counts.begin(), counts.end(), lowest) != 1) return false;
            first = lowest;
        }
        return dates.size() >= enough;
    }

    void FindCounter(const ImportedDraws& all) {
        ImportMapping& mapping = proposal_.mapping;
        for (std::size_t column = 0; column < mapping.columns.size(); ++column) {
            if (mapping.columns[column] != ColumnRole::Nothing || !CountsDraws(all, column))
                continue;
            mapping.drawNumberColumn = static_cast<int>(column);
            return;
        }
    }

    // Two draws on most dates are true ones.
    void SameDates() {
        ImportMapping& mapping = proposal_.mapping;
        mapping.sameDate = SameDate::KeepAll;
        const ImportedDraws all = ReadDraws(table_, mapping, rules_);
        mapping.sameDate = SameDate::KeepFirst;
        std::size_t dates = 0;
        std::size_t several = 0;
        std::size_t apart = 0;
        for (std::size_t i = 0; i < all.draws.size(); ++i) {
            const auto same = [&](std::size_t other) {
                return all.draws[i].date == all.draws[other].date;
            };
            if (i > 0 && same(i - 1)) continue;
            ++dates;
            if (i + 1 == all.draws.size() || !same(i + 1)) continue;
            ++several;
            if (NumberedApart(all.draws[i].row, all.draws[i + 1].row)) ++apart;
        }
        if (several == 0) return;
        if (apart * 2 >= dates) {
            mapping.sameDate = SameDate::KeepAll;
            Note(ImportTopic::SameDate, false, "Most dates have several draws: all are taken.");
            return;
        }
        if (apart == 0) FindCounter(all);
        Note(ImportTopic::SameDate, true,
             PlainDigits(static_cast<long long>(several)) +
                 (several == 1 ? " date has" : " dates have") +
                 " more than one draw; that only the first is taken is a guess.");
    }

    const ImportTable& table_;
    const DateRules& rules_;
    DateReader reader_;
    DatedRows dated_;
    std::vector<ColumnHeading> headings_;
    std::vector<BallColumn> balls_;
    BallChoice choice_;
    ImportProposal proposal_;
};

}  // namespace

ImportProposal ProposeImport(const ImportTable& table, const DateRules& dates) {
    return Understanding(table, dates).Proposal();
}
