// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/generator.h"

#include "core/filters.h"
#include "core/lines.h"
#include "core/text.h"

namespace {

constexpr double paintInterval = 1.0 / 60.0;

// Tells the status no more often than a screen can show it; the text is made only then.
class StatusLine {
  public:
    StatusLine(const GeneratorStyle& style, const GeneratorSteps& steps)
        : style_(style), steps_(steps) {}

    void Try(int tries, double elapsed) {
        tries_ = tries;
        elapsed_ = elapsed;
        if (!style_.paintTries || (tries > 1 && elapsed - painted_ < paintInterval)) return;
        painted_ = elapsed;
        steps_.paintStatus(Text());
    }

    std::string Text() const { return StatusText(tries_, elapsed_, style_.timeDecimals); }

  private:
    const GeneratorStyle& style_;
    const GeneratorSteps& steps_;
    int tries_ = 0;
    double elapsed_ = 0;
    double painted_ = 0;
};

// All tests run, also where the first has failed.
bool AllPass(State& state, const Conditions& conditions, const GeneratorSteps& steps) {
    const bool further = !steps.furtherCondition || steps.furtherCondition();
    const bool history = HistoryOK(state, conditions.history) != 0;
    const bool highLow = HighLowOK(state, conditions.highLow) != 0;
    const bool oddEven = OddEvenOK(state, conditions.oddEven) != 0;
    return further && history && highLow && oddEven;
}

}  // namespace

std::string StatusText(int tries, double seconds, int timeDecimals) {
    return "Tries: " + GroupedDigits(tries) + "   Time: " + FixedText(seconds, timeDecimals) +
           " sec";
}

std::string GenerateLines(State& state, Random& random, const Conditions& conditions,
                          const GeneratorStyle& style, const GeneratorSteps& steps) {
    ClearLines(state);
    random.SeedFromClock();
    const double start = steps.seconds();
    StatusLine status(style, steps);
    int tries = 0;
    bool pass = false;
    bool over = false;
    while (!pass && !over) {
        steps.playLotto();
        ++tries;
        status.Try(tries, steps.seconds() - start);
        over = steps.seconds() - start > generatorLimit;
        pass = AllPass(state, conditions, steps);
    }
    if (style.sortLines) SortLines(state, state.Picks);
    if (style.pruneDuplicates) PruneDuplicates(state);
    steps.showLines();
    if (!style.paintTries) status.Try(tries, steps.seconds() - start);
    std::string text = status.Text();
    if (steps.seconds() - start > generatorLimit) {
        text += " (Some lines do not comply with conditions)";
    }
    steps.paintStatus(text);
    return text;
}
