// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/proof.h"

#include <algorithm>
#include <cstddef>

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
    const Guarantee found =
        VerifyGuarantee(promise.lines, promise.numbers, promise.drawn, promise.matched);
    const long long covered = found.selections - found.uncovered;
    const std::string selections = GroupedDigits(found.selections) + " selections of " +
                                   PlainDigits(promise.drawn) + " from " +
                                   PlainDigits(promise.numbers) + " numbers have a " +
                                   PlainDigits(promise.matched) + "-match";
    if (found.uncovered == 0) return "Checked: all " + selections + ".";
    const std::string none = found.uncovered == 1 ? " has none:" : " have none, such as";
    return "Checked: " + (covered == 0 ? "0" : GroupedDigits(covered)) + " of " + selections +
           "; " + GroupedDigits(found.uncovered) + none + " numbers " +
           Listed(found.firstUncovered) + " of the wheel.";
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

}  // namespace wheels
