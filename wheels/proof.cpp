// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/proof.h"

#include <algorithm>
#include <cstddef>

#include "core/lines.h"
#include "core/text.h"

namespace wheels {
namespace {

constexpr int lettersInLine = 6;

std::string FirstLetters(std::string_view pattern, std::size_t count) {
    std::string letters;
    for (; !pattern.empty(); pattern.remove_prefix(lettersInLine)) {
        letters += pattern.substr(0, count);
    }
    return letters;
}

/// "4, 10 and 11".
std::string Listed(const std::vector<int>& numbers) {
    std::string text;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0) text += i + 1 == numbers.size() ? " and " : ", ";
        text += PlainDigits(numbers[i]);
    }
    return text;
}

/// `where` stands behind the match, `example` words the first selection without one.
template <typename Example>
std::string Told(const Promise& promise, const std::string& where, Example example) {
    const Guarantee found =
        VerifyGuarantee(promise.lines, promise.numbers, promise.drawn, promise.matched);
    const long long covered = found.selections - found.uncovered;
    const std::string selections = GroupedDigits(found.selections) + " selections of " +
                                   PlainDigits(promise.drawn) + " from " +
                                   PlainDigits(promise.numbers) + " numbers have a " +
                                   PlainDigits(promise.matched) + "-match" + where;
    if (found.uncovered == 0) return "Checked: all " + selections + ".";
    const std::string none = found.uncovered == 1 ? " has none: " : " have none, such as ";
    return "Checked: " + (covered == 0 ? "0" : GroupedDigits(covered)) + " of " + selections +
           "; " + GroupedDigits(found.uncovered) + none + example(found.firstUncovered);
}

/// The lines of the table as sets of places among the numbers that were wheeled.
std::vector<std::uint64_t> MasksOfLines(const State& state, const std::vector<int>& numbers) {
    std::vector<std::uint64_t> masks(static_cast<std::size_t>(LineCount(state)));
    for (std::size_t line = 0; line < masks.size(); ++line) {
        for (int column = 1; column <= state.Picks; ++column) {
            const int number = state.Lines(static_cast<long long>(line) + 1, column);
            const auto place = std::ranges::lower_bound(numbers, number);
            if (place == numbers.end() || *place != number) continue;
            masks[line] |= std::uint64_t{1} << static_cast<unsigned>(place - numbers.begin());
        }
    }
    return masks;
}

}  // namespace

Promise PromiseOf(WheelList list, int item, int picks) {
    const Wheel& wheel = WheelAt(list, item);
    const bool five = picks == 5;
    const int letters = five ? 5 : lettersInLine;
    return {.lines = five ? LineMasks(FirstLetters(wheel.pattern, 5), letters)
                          : LineMasks(wheel.pattern, letters),
            .numbers = wheel.numbers,
            .drawn = five ? std::min(wheel.drawn, 5) : wheel.drawn,
            .matched = FamilyOf(list).matched};
}

std::string CheckedText(const Promise& promise) {
    return Told(promise, {}, [](const std::vector<int>& numbers) {
        return "numbers " + Listed(numbers) + " of the wheel.";
    });
}

std::string CheckedText(WheelList list, int item, int picks) {
    return CheckedText(PromiseOf(list, item, picks)) + PicksRemark(picks);
}

std::string PicksRemark(int picks) {
    if (picks == 6) return {};
    if (picks == 5) {
        return " This is the wheel as a pick-5 lottery plays it, without the sixth number of each "
               "line.";
    }
    if (picks < 5) return " This is the wheel as a pick-6 lottery plays it.";
    return " This counts the six numbers that the wheel gives each line, not the random ones.";
}

std::vector<int> PoolNumbers(const State& state, int first, int count) {
    std::vector<int> numbers;
    for (int place = first; place < first + count; ++place) numbers.push_back(state.Pool(place));
    return numbers;
}

std::string LeftText(const State& state, const Played& played) {
    std::vector<int> numbers = played.numbers;
    std::ranges::sort(numbers);
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    const int count = static_cast<int>(numbers.size());
    if (count < played.drawn) return {};
    const Promise promise{.lines = MasksOfLines(state, numbers),
                          .numbers = count,
                          .drawn = played.drawn,
                          .matched = played.matched};
    const std::size_t left = promise.lines.size();
    const std::string where = " in the " + PlainDigits(static_cast<long long>(left)) +
                              (left == 1 ? " line left" : " lines left");
    return Told(promise, where, [&numbers](std::vector<int> places) {
        for (int& place : places) place = numbers[static_cast<std::size_t>(place) - 1];
        return Listed(places) + ".";
    });
}

}  // namespace wheels
