// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/guarantee.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <string>

#include "core/failure.h"

namespace wheels {
namespace {

constexpr int maxNumbers = 64;
constexpr std::size_t words = 3;
constexpr std::size_t maxLines = words * 64;

/// A set of lines, one bit a line.
using LineSet = std::array<std::uint64_t, words>;

/// The numbers chosen so far and what they mean for the lines.
struct Node {
    std::uint64_t chosen = 0;   ///< Bit n: number n + 1.
    std::uint64_t closing = 0;  ///< Numbers that would complete the match in some line.
    std::vector<LineSet> hits;  ///< Entry k: the lines that hold at least k of the chosen.
};

/// Walks through the selections that have no match so far, deepest first, in ascending order.
class Enumeration {
  public:
    Enumeration(std::span<const std::uint64_t> lines, int numbers, int drawn, int matched)
        : lines_(lines), drawn_(drawn), almost_(static_cast<std::size_t>(matched - 1)) {
        field_ = numbers == maxNumbers ? ~std::uint64_t{0} : (std::uint64_t{1} << numbers) - 1;
        for (std::size_t line = 0; line < lines.size(); ++line) {
            for (std::uint64_t rest = lines[line]; rest != 0; rest &= rest - 1) {
                linesWith_[Lowest(rest)][line / 64] |= std::uint64_t{1} << (line % 64);
            }
        }
    }

    Guarantee Run() {
        nodes_.resize(static_cast<std::size_t>(drawn_));
        for (Node& node : nodes_) node.hits.resize(almost_ + 1);
        Node& root = nodes_.front();
        for (std::size_t line = 0; line < lines_.size(); ++line) {
            root.hits[0][line / 64] |= std::uint64_t{1} << (line % 64);
        }
        if (almost_ == 0) root.closing = UnionOf(root.hits[0]);
        Descend(0, field_);
        return found_;
    }

  private:
    static std::size_t Lowest(std::uint64_t set) {
        return static_cast<std::size_t>(std::countr_zero(set));
    }

    std::uint64_t UnionOf(const LineSet& set) const {
        std::uint64_t numbers = 0;
        for (std::size_t word = 0; word < words; ++word) {
            for (std::uint64_t rest = set[word]; rest != 0; rest &= rest - 1) {
                numbers |= lines_[word * 64 + Lowest(rest)];
            }
        }
        return numbers;
    }

    /// Numbers that complete a match once `number` is chosen too.
    std::uint64_t ClosingWith(const Node& node, std::size_t number) const {
        if (almost_ == 0) return node.closing;
        LineSet added;
        for (std::size_t word = 0; word < words; ++word) {
            added[word] = node.hits[almost_ - 1][word] & linesWith_[number][word];
        }
        return node.closing | UnionOf(added);
    }

    /// Adds each of the numbers in `higher`, all above those chosen, to the selection at `depth`.
    void Descend(std::size_t depth, std::uint64_t higher) {
        const Node& node = nodes_[depth];
        const int missing = drawn_ - static_cast<int>(depth);
        std::uint64_t open = higher & ~node.closing;
        if (missing == 1) return Count(node.chosen, open);
        while (open != 0) {
            const std::size_t number = Lowest(open);
            open &= open - 1;
            const std::uint64_t closing = ClosingWith(node, number);
            const std::uint64_t chosen = node.chosen | std::uint64_t{1} << number;
            if (missing == 2) {
                Count(chosen, open & ~closing);
            } else {
                Enter(depth + 1, node, number, chosen, closing);
                Descend(depth + 1, open);
            }
        }
    }

    void Enter(std::size_t depth, const Node& from, std::size_t number, std::uint64_t chosen,
               std::uint64_t closing) {
        Node& node = nodes_[depth];
        node.chosen = chosen;
        node.closing = closing;
        node.hits[0] = from.hits[0];
        for (std::size_t k = 1; k <= almost_; ++k) {
            for (std::size_t word = 0; word < words; ++word) {
                node.hits[k][word] =
                    from.hits[k][word] | (from.hits[k - 1][word] & linesWith_[number][word]);
            }
        }
    }

    /// Each number of `last` completes `chosen` to a selection without the match.
    void Count(std::uint64_t chosen, std::uint64_t last) {
        if (last == 0) return;
        if (found_.uncovered == 0) {
            chosen |= std::uint64_t{1} << Lowest(last);
            for (; chosen != 0; chosen &= chosen - 1) {
                found_.firstUncovered.push_back(static_cast<int>(Lowest(chosen)) + 1);
            }
        }
        found_.uncovered += std::popcount(last);
    }

    std::span<const std::uint64_t> lines_;
    int drawn_;
    std::size_t almost_;  ///< One number fewer than the match.
    std::uint64_t field_ = 0;
    std::array<LineSet, maxNumbers> linesWith_{};
    std::vector<Node> nodes_;
    Guarantee found_;
};

long long Combinations(int numbers, int drawn) {
    if (drawn < 0 || drawn > numbers) return 0;
    long long count = 1;
    for (int k = 1; k <= drawn; ++k) count = count * (numbers - drawn + k) / k;
    return count;
}

}  // namespace

std::vector<std::uint64_t> LineMasks(std::string_view pattern, int lettersInLine) {
    std::vector<std::uint64_t> masks(pattern.size() / static_cast<std::size_t>(lettersInLine));
    for (std::size_t line = 0; line < masks.size(); ++line) {
        const std::size_t letters = static_cast<std::size_t>(lettersInLine);
        for (const char letter : pattern.substr(line * letters, letters)) {
            const int place = letter - 'A';
            if (place < 0 || place >= maxNumbers) {
                throw Failure("A wheel with the letter " + std::string(1, letter) +
                              " cannot be verified");
            }
            masks[line] |= std::uint64_t{1} << place;
        }
    }
    return masks;
}

Guarantee VerifyGuarantee(std::span<const std::uint64_t> lines, int numbers, int drawn,
                          int matched) {
    if (numbers > maxNumbers || lines.size() > maxLines) {
        throw Failure("A wheel of " + std::to_string(numbers) + " numbers in " +
                      std::to_string(lines.size()) + " lines is too large to verify");
    }
    Guarantee result;
    if (drawn >= 1 && drawn <= numbers && matched >= 1) {
        result = Enumeration(lines, numbers, drawn, matched).Run();
    }
    result.selections = Combinations(numbers, drawn);
    return result;
}

Guarantee VerifyGuarantee(WheelList list, int item) {
    const WheelFamily& family = FamilyOf(list);
    const Wheel& wheel = WheelAt(list, item);
    if (family.matched == 0) throw Failure(std::string(family.form) + " promises no match");
    return VerifyGuarantee(LineMasks(wheel.pattern, family.lettersInLine), wheel.numbers,
                           wheel.drawn, family.matched);
}

}  // namespace wheels
