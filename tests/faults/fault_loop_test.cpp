// SPDX-License-Identifier: GPL-3.0-or-later
// Every save of the program under errors of the calls that it makes to the system, and under a kill
// at each. Without orders a sample of the faults is tried; `--all` tries all of them, `--step N`
// each N-th, `--call NAME` those at the calls of that name, such as "write".
#include <gtest/gtest.h>

#include <QStandardPaths>
#include <QTemporaryDir>
#include <chrono>
#include <cstdlib>
#include <iostream>

#include "shell/Application.h"
#include "tests/faults/scenarios.h"

namespace {

struct Orders {
    std::size_t step = 0;  // 0: a sample
    std::string call;      // empty: all of them
} orders;

Tally total;

// A folder in memory where there is one: nothing waits for a disk.
QString TemplatePath() {
    const QString memory = QStringLiteral("/dev/shm");
    const QString place = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    return place + QStringLiteral("/quillon-faults-XXXXXX");
}

class FaultLoopTest : public testing::TestWithParam<Scenario> {};

std::size_t StepFor(std::size_t faults) {
#ifdef QUILLON_SANITIZE
    constexpr std::size_t sample = 1;
#else
    constexpr std::size_t sample = 4;
#endif
    if (orders.step > 0) return orders.step;
    return faults / sample + 1;
}

TEST_P(FaultLoopTest, LosesNothing) {
    const QTemporaryDir folder(TemplatePath());
    FaultLoop loop(GetParam(), folder.path().toStdString());
    ASSERT_EQ(loop.RunSound(), "");
    ASSERT_GT(loop.CallCount(), 0U);
    const auto faults = loop.Faults();
    const std::size_t step = StepFor(faults.size());
    // The sample begins at another kind of fault in each scenario.
    static std::size_t scenario = 0;
    Tally tally;
    for (std::size_t i = orders.step > 0 ? 0 : (++scenario * 13) % step; i < faults.size();
         i += step) {
        if (!orders.call.empty() && loop.CallOf(faults[i]) != orders.call) continue;
        const std::string wrong = loop.Run(faults[i], tally);
        EXPECT_EQ(wrong, "") << loop.InWords(faults[i]);
    }
    if (orders.step > 0) {
        std::cout << GetParam().name << ": " << loop.CallCount() << " calls, " << tally.faults
                  << " faults, " << tally.Wrong() << " wrong" << std::endl;
    }
    total.faults += tally.faults;
    total.kills += tally.kills;
    total.reported += tally.reported;
    total.tolerated += tally.tolerated;
    total.lost += tally.lost;
    total.falselySaid += tally.falselySaid;
    total.hangs += tally.hangs;
    total.other += tally.other;
}

INSTANTIATE_TEST_SUITE_P(Saving, FaultLoopTest, testing::ValuesIn(Scenarios()),
                         [](const auto& scenario) { return std::string(scenario.param.name); });

void TakeOrders(int argumentCount, char** arguments) {
    for (int i = 1; i < argumentCount; ++i) {
        const std::string order = arguments[i];
        if (order == "--all") orders.step = 1;
        if (order == "--call" && i + 1 < argumentCount) orders.call = arguments[++i];
        if (order == "--step" && i + 1 < argumentCount)
            orders.step = static_cast<std::size_t>(std::atoi(arguments[++i]));
    }
}

}  // namespace

// What a forked run leaves at its end is nobody's leak.
extern "C" int __lsan_is_turned_off();
extern "C" int __lsan_is_turned_off() { return 1; }

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    TakeOrders(argumentCount, arguments);
    Application application(argumentCount, arguments);
    QStandardPaths::setTestModeEnabled(true);
    const int result = RUN_ALL_TESTS();
    std::cout << total.faults << " faults: " << total.kills << " kills, " << total.reported
              << " reported, " << total.tolerated << " borne; lost " << total.lost
              << ", falsely said " << total.falselySaid << ", hangs " << total.hangs << ", other "
              << total.other << std::endl;
    return result;
}
