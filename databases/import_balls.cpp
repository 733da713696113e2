// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_balls.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/text.h"

namespace {

using Indexes = std::vector<std::size_t>;

constexpr std::size_t fewestMains = 4;
constexpr std::size_t mostMains = 7;
// Extra balls of a drum with a 0 go from 0 to 9; elsewhere a 0 stands for no ball.
constexpr int highestDigit = 9;

constexpr double unlikely = 1e-6;

// What the numbers of some columns in a row of columns say.
struct Split {
    std::size_t mains = 0;     // 0: no drum begins here
    std::size_t sameDrum = 0;  // columns behind them from the same drum
    bool ascending = false;
    bool guess = false;
    std::size_t tooMany = 0;  // numbers of one draw, if there are more than a lottery here has
};

class Chooser {
  public:
    Chooser(const std::vector<BallColumn>& columns, const std::vector<ColumnHeading>& headings)
        : columns_(columns), headings_(headings) {}

    BallChoice Choose() {
        TakeHeadings();
        if (mains_.size() >= fewestMains) {
            FromHeadings();
        } else if (const auto list = BestList()) {
            FromList(*list);
        } else {
            FromStatistics();
        }
        if (choice_.mains.empty()) return choice_;
        PreferFilledExtra();
        if (!choice_.extras.empty()) TellDrum();
        return choice_;
    }

  private:
    const BallColumn& At(std::size_t index) const { return columns_[index]; }

    const ColumnHeading& HeadingOf(std::size_t index) const {
        static const ColumnHeading none;
        const std::size_t column = At(index).column;
        return column < headings_.size() ? headings_[column] : none;
    }

    void TakeHeadings() {
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const HeadingKind kind = HeadingOf(i).kind;
            if (kind == HeadingKind::Main && At(i).part == 0) mains_.push_back(i);
            if (At(i).told || (kind == HeadingKind::Extra && At(i).part <= 3)) extras_.push_back(i);
        }
        choice_.extraByHeading = !extras_.empty();
    }

    void FromHeadings() {
        choice_.byHeadings = true;
        std::size_t count = mains_.size();
        if (extras_.empty() || count > mostMains) {
            const Split split = SplitOf(mains_, false);
            if (split.mains >= fewestMains && split.mains < count) count = split.mains;
        }
        TakeMains(mains_, count, mains_.size() - count);
        if (choice_.extras.empty()) TakeExtrasBehind();
    }

    // The column of several numbers that holds the main numbers, if any does.
    std::optional<Indexes> BestList() const {
        std::optional<Indexes> best;
        bool bestTold = false;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (At(i).part != 1 || HeadingOf(i).kind == HeadingKind::Extra) continue;
            Indexes list;
            for (std::size_t j = i; j < columns_.size() && At(j).column == At(i).column; ++j) {
                list.push_back(j);
            }
            const bool told = HeadingOf(i).kind == HeadingKind::Mains;
            if (list.size() < fewestMains || (best && (bestTold || !told))) continue;
            best = std::move(list);
            bestTold = told;
        }
        return best;
    }

    void FromList(const Indexes& list) {
        choice_.byHeadings = HeadingOf(list.front()).kind == HeadingKind::Mains;
        if (!extras_.empty() && list.size() <= mostMains) {
            TakeMains(list, list.size(), 0);
            return;
        }
        const Split split = SplitOf(list, true);
        choice_.countIsGuess = split.guess;
        if (split.mains == 0) {
            choice_.numbersSeen = list.size();
            return;
        }
        TakeMains(list, split.mains, list.size() - split.mains);
        if (choice_.extras.empty()) TakeExtrasBehind();
    }

    void FromStatistics() {
        Indexes singles;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const bool extra = std::find(extras_.begin(), extras_.end(), i) != extras_.end();
            if (At(i).part == 0 && !extra) singles.push_back(i);
        }
        const bool found = TakeBestWindow(singles, true) ||
                           (choice_.numbersSeen == 0 && TakeBestWindow(singles, false));
        if (found && choice_.extras.empty()) TakeExtrasBehind();
        if (!found && choice_.numbersSeen == 0) choice_.numbersSeen = singles.size();
    }

    // The columns from `start` on that follow each other in the table; all where gaps may be.
    Indexes Run(const Indexes& list, std::size_t start, bool adjacent) const {
        Indexes run{list[start]};
        for (std::size_t i = start + 1; i < list.size() && run.size() < 30; ++i) {
            if (adjacent && At(list[i]).column != At(list[i - 1]).column + 1) break;
            run.push_back(list[i]);
        }
        return run;
    }

    bool TakeBestWindow(const Indexes& singles, bool adjacent) {
        std::size_t bestStart = 0;
        Split best;
        for (std::size_t start = 0; start + fewestMains <= singles.size(); ++start) {
            const Indexes run = Run(singles, start, adjacent);
            const Split split = SplitOf(run, extras_.empty());
            if (split.tooMany > 0) return TooMany(split.tooMany);
            if (split.mains < fewestMains) continue;
            const bool better = split.mains > best.mains ||
                                (split.mains == best.mains && split.ascending && !best.ascending);
            const bool kind = split.ascending || !best.ascending;
            if (best.mains > 0 && !(better && kind)) continue;
            best = split;
            bestStart = start;
        }
        if (best.mains == 0) return false;
        choice_.countIsGuess = best.guess;
        TakeMains(Run(singles, bestStart, adjacent), best.mains, best.sameDrum);
        return true;
    }

    bool TooMany(std::size_t numbers) {
        choice_.numbersSeen = numbers;
        return false;
    }

    void TakeMains(const Indexes& list, std::size_t mains, std::size_t behind) {
        const auto end = list.begin() + static_cast<std::ptrdiff_t>(mains);
        if (mains > mostMains || mains < fewestMains) {
            choice_.numbersSeen = mains;
            return;
        }
        choice_.mains.assign(list.begin(), end);
        choice_.extras = extras_;
        if (extras_.empty()) {
            choice_.extras.assign(end, end + static_cast<std::ptrdiff_t>(behind));
        }
    }

    // Columns without a heading that speaks, next to the main numbers, that could be drawn.
    void TakeExtrasBehind() {
        if (choice_.mains.empty()) return;
        std::size_t last = choice_.mains.back();
        for (std::size_t i = last + 1; i < columns_.size() && choice_.extras.size() < 2; ++i) {
            const std::size_t column = At(i).column - (At(i).behindWord ? 1 : 0);
            const bool next = column == At(last).column + 1 ||
                              (At(i).part > 1 && At(i).column == At(last).column);
            if (!next || !CouldBeDrawn(At(i)) || At(i).distinct < 2) return;
            if (choice_.extras.size() == 1) {
                const BallColumn& first = At(choice_.extras.front());
                const bool pair = EqualShare(first, At(i)) <= SlipsAllowed(first) &&
                                  At(i).highest * 2 > first.highest && At(i).filled >= 8;
                if (!pair) return;
            }
            choice_.extras.push_back(i);
            last = i;
        }
    }

    void PreferFilledExtra() {
        std::size_t most = 0;
        for (const std::size_t extra : choice_.extras) most = std::max(most, At(extra).filled);
        std::stable_partition(choice_.extras.begin(), choice_.extras.end(),
                              [&](std::size_t extra) { return At(extra).filled * 2 >= most; });
    }

    double ClashShare(const Indexes& list, std::size_t count, const BallColumn& column) const {
        double share = 0;
        for (std::size_t i = 0; i < count; ++i) share += EqualShare(At(list[i]), column);
        return share;
    }

    int Highest(const Indexes& list, std::size_t count) const {
        int highest = 0;
        for (std::size_t i = 0; i < count; ++i) highest = std::max(highest, At(list[i]).highest);
        return highest;
    }

    std::size_t AscendingLength(const Indexes& list) const {
        std::size_t length = 1;
        while (length < list.size() && At(list[length - 1]).lowest >= 1 &&
               AscendingShare(At(list[length - 1]), At(list[length])) >= 0.9) {
            ++length;
        }
        return length;
    }

    std::size_t DrumLength(const Indexes& list) const {
        std::size_t length = 1;
        for (; length < list.size(); ++length) {
            const BallColumn& next = At(list[length]);
            const int highest = Highest(list, length);
            if (next.lowest < 1 || ClashShare(list, length, next) > SlipsAllowed(next)) break;
            if (ChanceOfNothingAbove(next.highest, highest, next.filled) < unlikely) break;
            if (ChanceOfNothingAbove(highest, next.highest, next.filled * length) < unlikely)
                return 0;
        }
        return At(list.front()).lowest < 1 ? 0 : length;
    }

    // How many of the columns are main numbers. With `mayGuess` the usual games decide where
    // nothing in the rows does.
    Split SplitOf(const Indexes& list, bool mayGuess) const {
        const std::size_t ascending = AscendingLength(list);
        if (ascending >= fewestMains) {
            if (ascending > mostMains) return {.tooMany = ascending};
            return {.mains = ascending, .sameDrum = 0, .ascending = true, .guess = false};
        }
        const std::size_t drum = DrumLength(list);
        if (drum > mostMains + 3) return {.tooMany = drum};
        if (drum < fewestMains) return {};
        if (!mayGuess) return {.mains = drum, .sameDrum = 0, .ascending = false, .guess = false};
        std::size_t mains = drum;
        const int highest = Highest(list, drum);
        if (drum == 6 && highest <= 31) mains = 5;
        if (drum == 7 && highest > 40) mains = 6;
        if (drum == 8) mains = highest > 40 && highest < 46 ? 6 : 7;
        if (drum > 8) mains = 7;
        return {.mains = mains, .sameDrum = drum - mains, .ascending = false, .guess = drum >= 6};
    }

    void TellDrum() {
        const BallColumn& extra = At(choice_.extras.front());
        const int highest = Highest(choice_.mains, choice_.mains.size());
        const auto rows = static_cast<double>(extra.filled);
        const double equal =
            std::round(ClashShare(choice_.mains, choice_.mains.size(), extra) * rows);
        const double expected = rows * static_cast<double>(choice_.mains.size()) / highest;
        const Drum told = HeadingOf(choice_.extras.front()).drum;
        if (equal >= 1 && equal > expected / 8) {
            choice_.drumReason = "it equals a main number in " +
                                 PlainDigits(static_cast<long long>(equal)) +
                                 (equal < 2 ? " row" : " rows");
        } else if (extra.lowest == 0 && extra.highest <= highestDigit) {
            choice_.drumReason = "it has a 0";
        } else if (ChanceOfNothingAbove(extra.highest, highest, extra.filled) < 1e-4) {
            choice_.drumReason = "its highest number is " + PlainDigits(extra.highest);
        } else if (expected >= 6) {
            choice_.sameDrum = true;
            choice_.drumReason = "it never equals a main number and goes as high";
        } else if (told != Drum::Unknown) {
            choice_.sameDrum = told == Drum::Same;
            choice_.drumReason = "its heading says so";
        } else {
            choice_.sameDrum = extra.highest * 10 > highest * 6;
            choice_.drumIsGuess = true;
            choice_.drumReason = "there are too few rows to be sure";
        }
    }

    const std::vector<BallColumn>& columns_;
    const std::vector<ColumnHeading>& headings_;
    Indexes mains_;
    Indexes extras_;
    BallChoice choice_;
};

}  // namespace

BallChoice ChooseBalls(const std::vector<BallColumn>& columns,
                       const std::vector<ColumnHeading>& headings) {
    return Chooser(columns, headings).Choose();
}
