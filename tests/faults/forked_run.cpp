// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/forked_run.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string>

#include "shell/Application.h"
#include "tests/faults/system_calls.h"

namespace {

// A run takes a fraction of a second; sanitizers and a busy computer are much slower.
constexpr unsigned longestRun = 120;

// Reads the report that ends a run, and closes it.
void AnswerReport(Record& record) {
    auto* report = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (report == nullptr || report->objectName() != QStringLiteral("FailureReport")) return;
    record.Add(Record::Kind::Report, report->text().toStdString(),
               report->informativeText().toStdString());
    report->buttons().constFirst()->click();
}

[[noreturn]] void BeTheChild(Record& record, const std::function<void()>& run) {
    ::alarm(longestRun);
    QTimer hand;
    hand.setInterval(0);
    QObject::connect(&hand, &QTimer::timeout, &hand, [&record] { AnswerReport(record); });
    hand.start();
    auto* application = static_cast<Application*>(QCoreApplication::instance());
    application->Run([&run] {
        run();
        return EXIT_SUCCESS;
    });
    ::_exit(EXIT_SUCCESS);
}

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

RunEnd EndOf(int status) {
    if (WIFSIGNALED(status)) return WTERMSIG(status) == SIGALRM ? RunEnd::Hung : RunEnd::Died;
    switch (WEXITSTATUS(status)) {
        case EXIT_SUCCESS:
            return RunEnd::Finished;
        case EXIT_FAILURE:
            return RunEnd::Reported;
        case system_calls::killed:
            return RunEnd::Killed;
        default:
            return RunEnd::Died;
    }
}

}  // namespace

ForkedRun RunForked(Record& record, const std::function<void()>& run) {
    record.Clear();
    const pid_t child = ::fork();
    if (child == 0) BeTheChild(record, run);
    int status = 0;
    rusage usage{};
    while (::wait4(child, &status, 0, &usage) == -1 && errno == EINTR) {
    }
    return {.end = EndOf(status),
            .peakMemory = usage.ru_maxrss,
            .seconds = Seconds(usage.ru_utime) + Seconds(usage.ru_stime)};
}

long MemoryNow() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        long size = 0;
        if (word == "VmRSS:" && status >> size) return size;
    }
    return 0;
}
