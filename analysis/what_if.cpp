// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/what_if.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "core/field_reader.h"
#include "core/lines.h"
#include "core/saved_entries.h"
#include "core/text.h"

namespace {

constexpr int extraColumn = entry_column::extraBall;
constexpr int withExtra = 10;

// One list of the report: the words behind the number of matches, and where its counts begin.
struct MatchList {
    const char* words;
    int firstCount;
};

constexpr MatchList plainList = {" - match", 0};
constexpr MatchList bonusList = {" - match + bonus", withExtra};
constexpr MatchList extraBallList = {" - match + powerball", withExtra};

std::vector<MatchList> ListsOf(const State& state) {
    std::vector<MatchList> lists = {plainList};
    if (state.HasBonus > 0) lists.push_back(bonusList);
    if (state.MaxPball > 0) lists.push_back(extraBallList);
    return lists;
}

int DrawCount(const State& state) {
    int row = 1;
    while (state.Draws(row, 1) != 0) ++row;
    return row - 1;
}

// Whether the odds hold for the line: distinct numbers of the lottery, and an extra ball of it.
bool IsPlainEntry(const State& state, int line) {
    std::vector<int> numbers;
    for (int column = 1; column <= state.Picks; ++column) {
        const int number = state.Lines(line, column);
        if (number < 1 || number > state.MaxNum) return false;
        numbers.push_back(number);
    }
    std::ranges::sort(numbers);
    if (std::ranges::adjacent_find(numbers) != numbers.end()) return false;
    const int ball = state.Lines(line, extraColumn);
    return state.MaxPball <= 0 || (ball >= 1 && ball <= state.MaxPball);
}

// "n over k": ways to choose k of n.
double Choices(int n, int k) {
    if (k < 0 || k > n) return 0;
    double choices = 1;
    for (int i = 1; i <= k; ++i) choices = choices * (n - k + i) / i;
    return choices;
}

// The hypergeometric distribution (Feller, An Introduction to Probability Theory and Its
// Applications, volume 1, II.6): of a field of N numbers n are drawn, and m of the n chosen ones
// are among them with the probability C(n, m) C(N - n, n - m) / C(N, n).
double ChanceOf(const State& state, int matches) {
    const int drawn = state.Picks;
    const int field = state.MaxNum;
    return Choices(drawn, matches) * Choices(field - drawn, drawn - matches) /
           Choices(field, drawn);
}

// That the bonus or extra ball is hit as well: a bonus ball is one of the numbers that were not
// drawn, of which the entry has those that it did not match; an extra ball has a drum of its own.
double ChanceOfExtra(const State& state, int matches) {
    if (state.MaxPball > 0) return 1.0 / state.MaxPball;
    const int notDrawn = state.MaxNum - state.Picks;
    if (state.HasBonus <= 0 || notDrawn <= 0) return 0;
    return 1.0 * (state.Picks - matches) / notDrawn;
}

// One place where that tells enough, else two digits behind the zeros.
std::string TimesText(double times) {
    constexpr int mostPlaces = 9;
    int places = 1;
    for (double rest = times * 10; rest > 0 && rest < 9.95 && places < mostPlaces; rest *= 10) {
        ++places;
    }
    return FixedText(times, places) + " times";
}

}  // namespace

std::string what_if::Report(const State& state) {
    std::string report = "Your lottery entries were checked against" +
                         NumberText(DrawCount(state)) + " draw results:" + state.Crlf + state.Crlf;
    for (const MatchList& list : ListsOf(state)) {
        if (list.firstCount > 0) report += state.Crlf;
        for (int matches = state.Picks; matches >= 0; --matches) {
            report += NumberText(matches) + list.words + " =" +
                      NumberText(state.Pool(list.firstCount + matches)) + " times" + state.Crlf;
        }
    }
    return report;
}

std::string what_if::ByChance(const State& state) {
    const int lines = LineCount(state);
    for (int line = 1; line <= lines; ++line) {
        if (!IsPlainEntry(state, line)) return {};
    }
    const double comparisons = 1.0 * lines * DrawCount(state);
    if (comparisons == 0) return {};
    std::string text = "By chance:";
    for (const MatchList& list : ListsOf(state)) {
        for (int matches = state.Picks; matches >= 0; --matches) {
            const double extra = ChanceOfExtra(state, matches);
            const double chance =
                ChanceOf(state, matches) * (list.firstCount > 0 ? extra : 1 - extra);
            text += NumberText(matches) + list.words + " " + TimesText(chance * comparisons) + ",";
        }
    }
    text.pop_back();
    return text;
}

int what_if::LoadEntries(State& state, const ProgramFolder& folder, std::string_view lottery) {
    const std::string content = folder.Read(savedEntriesFile);
    FieldReader reader(content, savedEntriesFile);
    int lines = 0;
    while (!reader.AtEnd()) {
        SavedEntry entry;
        ReadEntry(reader, entry.data(), entry_column::lottery + 1);
        for (int column = 1; column <= extraColumn; ++column) {
            const std::string& field = entry[static_cast<std::size_t>(column)];
            const auto number = LeadingInt16(field);
            if (!number) throw reader.Unexpected("numbers from -32768 to 32767", field);
            state.Pool(column) = *number;
        }
        reader.ReadLine("the rest of an entry");
        if (entry[entry_column::lottery] != lottery) continue;
        ++lines;
        for (int column = 1; column <= extraColumn; ++column) {
            state.Lines(lines, column) = state.Pool(column);
        }
    }
    state.Lines(lines + 1, 1) = 0;
    return lines;
}
