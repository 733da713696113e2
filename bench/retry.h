// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <functional>

#include "core/generator.h"

/// Measures the retry loop of a play form with every condition at strength 2 over 2,999 draws, and
/// counts the tries that ten seconds have room for; `playLotto` makes one.
///
/// Strength 2 in every condition is so strict that hardly any of a million sets of lines passes.
/// The second rate is what a machine with nothing else to do would reach by the clock on the wall.
void RetryAtStrengthTwo(benchmark::State& run, const GeneratorStyle& style,
                        const std::function<void(State& state, Random& random)>& playLotto);
