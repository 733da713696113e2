// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of a lottery with 2,999 draws in the analysis forms: load, figures and drawing.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPushButton>

#include "analysis/AAverages.h"
#include "analysis/ACommonNumbers.h"
#include "analysis/ANumberStats.h"
#include "analysis/AOddEven.h"
#include "analysis/ARange.h"
#include "analysis/ASums.h"
#include "analysis/Biorhythm.h"
#include "analysis/WhatIf.h"
#include "bench/history.h"
#include "core/memory_folder.h"
#include "core/settings.h"
#include "platform/system/MessageBoxes.h"
#include "platform/widgets/Lists.h"

namespace {

/// The program without a world outside.
struct Desk {
    Desk() {
        folder.Write("dbase2.txt", DatabaseBytes());
        MakeDefaultSettings(*state, folder);
    }

    std::unique_ptr<State> state = std::make_unique<State>();
    MemoryFolder folder;
    Random random{[] { return std::uint64_t{1}; }};
    DesktopMessageBoxes messages;
    Services services{.seconds = [] { return 0.0; },
                      .today = [] { return Date(std::chrono::year(2026) / 11 / 21); },
                      .random = random,
                      .region = {},
                      .messages = messages,
                      .openPage = {},
                      .saveLines = {},
                      .printLines = {}};
    Program program{.state = *state, .folder = folder, .services = services};
};

template <typename FormType>
void Choose(benchmark::State& run) {
    Desk desk;
    FormType form(desk.program, nullptr);
    form.Load();
    form.resize(1180, 740);
    form.show();
    QApplication::processEvents();
    auto* list = form.template findChild<ListBox*>(QStringLiteral("List1"));
    list->SetIndex(0);
    for (auto _ : run) {
        Q_EMIT list->clicked();
        QApplication::processEvents();
    }
}

void UpdateBiorhythm(benchmark::State& run) {
    Desk desk;
    Biorhythm form(desk.program, nullptr);
    form.Load();
    form.resize(1180, 740);
    form.show();
    QApplication::processEvents();
    auto* update = form.findChild<QPushButton*>(QStringLiteral("Command1"));
    for (auto _ : run) {
        update->click();
        QApplication::processEvents();
    }
}

}  // namespace

BENCHMARK(Choose<ACommonNumbers>)->Name("Choose/ACommonNumbers")->Unit(benchmark::kMillisecond);
BENCHMARK(Choose<ASums>)->Name("Choose/ASums")->Unit(benchmark::kMillisecond);
BENCHMARK(Choose<AOddEven>)->Name("Choose/AOddEven")->Unit(benchmark::kMillisecond);
BENCHMARK(Choose<AAverages>)->Name("Choose/AAverages")->Unit(benchmark::kMillisecond);
BENCHMARK(Choose<ARange>)->Name("Choose/ARange")->Unit(benchmark::kMillisecond);
BENCHMARK(Choose<ANumberStats>)->Name("Choose/ANumberStats")->Unit(benchmark::kMillisecond);
BENCHMARK(Choose<WhatIf>)->Name("Choose/WhatIf")->Unit(benchmark::kMillisecond);
BENCHMARK(UpdateBiorhythm)->Name("Update/Biorhythm")->Unit(benchmark::kMillisecond);

int main(int argumentCount, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
