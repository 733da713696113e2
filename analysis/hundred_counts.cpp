// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/hundred_counts.h"

#include "core/failure.h"
#include "core/text.h"

namespace {

constexpr int highest = static_cast<int>(HundredCounts::Count()) - 1;
constexpr int rulesLine = 3;

}  // namespace

void CountOne(HundredCounts& counts, const State& state, int row, int value,
              std::string_view what) {
    if (value < 0 || value > highest) {
        throw FailureInFile(state.DbaseFile, rulesLine + row,
                            "expected " + std::string(what) + " from 0 to " + PlainDigits(highest) +
                                ", but found " + PlainDigits(value));
    }
    ++counts(value);
}

void CheckField(const State& state) {
    if (state.MaxNum <= highest) return;
    throw FailureInFile(state.DbaseFile, rulesLine,
                        "expected a highest number of at most " + PlainDigits(highest) + ", but " +
                            PlainDigits(state.MaxNum) + " stands there");
}
