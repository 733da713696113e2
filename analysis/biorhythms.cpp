// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/biorhythms.h"

#include <cmath>

#include "core/settings.h"
#include "core/text.h"

namespace {

using biorhythms::Chart;
using biorhythms::Values;

// The cycles and their lengths in days.
constexpr int physical = 23;
constexpr int intellectual = 33;
constexpr int emotional = 28;
constexpr int spiritual = 53;
constexpr int aesthetic = 43;
constexpr int awareness = 48;
constexpr int intuition = 38;

// The charts' own value of pi; a closer one would draw other curves.
constexpr double chartPi = 3.142;

double Value(double degrees) { return std::sin(chartPi * degrees / 180) * 10; }

double Average(double one, double other, double third) { return (one + other + third) / 3; }

// Degrees a day.
constexpr double StepOf(int cycle) { return 360.0 / cycle; }

double AngleAfter(int days, int cycle) { return days % cycle * StepOf(cycle); }

// A cycle on its way through a chart.
class Curve {
  public:
    Curve(int days, int cycle) : angle_(AngleAfter(days, cycle)), step_(StepOf(cycle)) {}
    Curve(double angle, int cycle) : angle_(angle), step_(StepOf(cycle)) {}

    double Next() {
        const double value = Value(angle_);
        angle_ = static_cast<double>(RoundHalfToEven(angle_ + step_) % 360);
        return value;
    }

  private:
    double angle_;
    double step_;
};

}  // namespace

Chart biorhythms::BodyChart(int days) {
    const int age = days + firstDay;
    Curve first(age, physical);
    Curve second(age, intellectual);
    Curve third(age, emotional);
    Chart chart{};
    for (Values& row : chart) {
        row = {first.Next(), second.Next(), third.Next(), 0};
        row[3] = Average(row[0], row[1], row[2]);
    }
    return chart;
}

Chart biorhythms::MindChart(int days) {
    const int age = days + firstDay;
    Curve first(age, spiritual);
    Curve second(age, aesthetic);
    // Kept on purpose: awareness starts with the step of the aesthetic cycle.
    Curve third(age % awareness * StepOf(aesthetic), awareness);
    Curve fourth(age, intuition);
    Chart chart{};
    for (Values& row : chart) row = {first.Next(), second.Next(), third.Next(), fourth.Next()};
    return chart;
}

Values biorhythms::Biochart(int days) {
    const double mind = Value(AngleAfter(days, intellectual));
    const double feelings = Value(AngleAfter(days, emotional));
    const double insight = Value(AngleAfter(days, intuition));
    return {mind, feelings, insight, Average(mind, feelings, insight)};
}

Date biorhythms::BirthDate(const State& state, const Region& region, Date today) {
    return DateFromText(state.Settings(setting::BirthDate), region, today,
                        PlaceOf(setting::BirthDate));
}
