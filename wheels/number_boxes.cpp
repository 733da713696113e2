// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/number_boxes.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "core/failure.h"
#include "core/text.h"

namespace wheels {
namespace {

std::int16_t PoolNumber(const Box& box) {
    if (const auto number = LeadingInt16(box.text)) return *number;
    throw Failure("A number box holds " + Quoted(box.text) + ", which is too large");
}

int Count(const Boxes& boxes) { return static_cast<int>(boxes.size()); }

Box& At(Boxes& boxes, int index) { return boxes[static_cast<std::size_t>(index)]; }

// Shuffles Pool(first) to Pool(first + MaxNum - 1), which start as 1 to MaxNum.
void ShuffleField(State& state, Random& random, int first) {
    const int end = first + state.MaxNum;
    for (int i = first; i < end; ++i) state.Pool(i) = static_cast<std::int16_t>(i - first + 1);
    for (int i = first; i < end; ++i) {
        const int j = static_cast<int>(state.MaxNum * random.Next()) + first;
        std::swap(state.Pool(i), state.Pool(j));
    }
}

void Select(State& state, Random& random, Boxes& boxes, int first) {
    ShuffleField(state, random, first);
    for (int i = 0; i < Count(boxes); ++i) {
        if (At(boxes, i).inUse) At(boxes, i).text = PlainDigits(state.Pool(i + first));
    }
}

// Reads the boxes into Pool, mixes them there, and tells the last index that held a number.
int MixPool(State& state, Random& random, const Boxes& boxes) {
    ReadAll(state, boxes);
    int last = 0;
    for (int i = 0; i < Count(boxes); ++i) {
        if (state.Pool(i) > 0) last = i;
    }
    for (int i = 0; i <= last; ++i) {
        const int j = static_cast<int>(random.Next() * last);
        std::swap(state.Pool(i), state.Pool(j));
    }
    return last;
}

}  // namespace

bool IsInField(const Box& box, int maxNum) {
    const double number = LeadingNumber(box.text);
    return number >= 1 && number <= maxNum;
}

bool IsAboveZero(const Box& box, int) { return LeadingNumber(box.text) >= 1; }

bool HasNumber(const Box& box, int) { return LeadingNumber(box.text) != 0; }

void ChooseSize(Boxes& boxes, int count, UnusedTexts unused) {
    for (int i = 0; i < Count(boxes); ++i) {
        Box& box = At(boxes, i);
        box.inUse = i < count;
        if (!box.inUse && unused == UnusedTexts::Emptied) box.text.clear();
    }
}

void EmptyInvalid(Boxes& boxes, int maxNum) {
    for (Box& box : boxes) {
        if (!IsInField(box, maxNum)) box.text.clear();
    }
}

void ReadAll(State& state, const Boxes& boxes) {
    int index = 0;
    for (const Box& box : boxes) state.Pool(index++) = PoolNumber(box);
}

bool ReadAndEmptyUnused(State& state, Boxes& boxes) {
    const bool good = ReadInRange(state, boxes);
    for (Box& box : boxes) {
        if (!box.inUse) box.text.clear();
    }
    return good;
}

bool ReadInRange(State& state, const Boxes& boxes) {
    ReadAll(state, boxes);
    bool good = true;
    for (const Box& box : boxes) good = good && (!box.inUse || IsInField(box, state.MaxNum));
    return good;
}

bool ReadFirst(State& state, const Boxes& boxes, int count) {
    bool good = true;
    for (int i = 0; i < count; ++i) {
        const Box& box = boxes.at(static_cast<std::size_t>(i));
        state.Pool(i) = PoolNumber(box);
        good = good && IsAboveZero(box, state.MaxNum);
    }
    return good;
}

bool EachInUseHasNumber(const Boxes& boxes) {
    for (const Box& box : boxes) {
        if (box.inUse && !HasNumber(box, 0)) return false;
    }
    return true;
}

void SelectFromOne(State& state, Random& random, Boxes& boxes) { Select(state, random, boxes, 1); }

void SelectFromZero(State& state, Random& random, Boxes& boxes) { Select(state, random, boxes, 0); }

void MixOrder(State& state, Random& random, Boxes& boxes) {
    MixPool(state, random, boxes);
    for (int i = 0; i < Count(boxes); ++i) {
        const int number = state.Pool(i);
        At(boxes, i).text = number > 0 ? PlainDigits(number) : std::string();
    }
}

void MixOrderUpToLast(State& state, Random& random, Boxes& boxes) {
    const int last = MixPool(state, random, boxes);
    for (int i = 0; i <= last; ++i) At(boxes, i).text = PlainDigits(state.Pool(i));
}

}  // namespace wheels
