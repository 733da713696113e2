// SPDX-License-Identifier: GPL-3.0-or-later
// A history of 2,999 draws as a PDF: some 50 sheets and 27,000 cells.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <random>

#include "platform/system/PrintTask.h"
#include "printing/grid_reports.h"

namespace {

constexpr int drawCount = 2999;

ReportTable History() {
    std::mt19937 random(49);
    ReportTable table = {{"Date", "Num1", "Num2", "Num3", "Num4", "Num5", "Num6", "Num7", "Bonus"}};
    for (int draw = 1; draw <= drawCount; ++draw) {
        auto& row = table.emplace_back();
        row.push_back("01 Jun 05");
        for (int column = 1; column <= 8; ++column)
            row.push_back(std::to_string(1 + random() % 49));
    }
    return table;
}

void PrintHistoryToPdf(benchmark::State& state) {
    const PrintJob job = {.title = "Lottery draw results",
                          .options = {},
                          .compose = [table = History()](const SheetRoom& room) {
                              const ReportChoice all = {
                                  .lines = drawCount, .leftMargin = 10, .textSize = 0};
                              return DrawsReport(table, "UK Lotto", all, room);
                          }};
    const PrintTask task = TaskOf(job);
    for (auto _ : state) {
        QByteArray pdf = PdfOf(task, {});
        benchmark::DoNotOptimize(pdf.data());
    }
}
BENCHMARK(PrintHistoryToPdf)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
