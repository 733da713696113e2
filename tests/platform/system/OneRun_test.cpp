// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OneRun.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>
#include <thread>

namespace {

// Two runs on folders, in one process: the system keeps them apart as it would two programs.
class TwoRuns : public testing::Test {
  protected:
    std::unique_ptr<OneRun> RunThatAnswers() {
        auto run = std::make_unique<OneRun>(folder_.path());
        EXPECT_TRUE(run->HoldsFolder());
        run->AnswerBy([this] { ++shown_; });
        return run;
    }

    int argc_ = 1;
    char name_[8] = "one_run";
    char* argv_ = name_;
    QCoreApplication application_{argc_, &argv_};
    QTemporaryDir folder_;
    int shown_ = 0;
};

TEST_F(TwoRuns, ShareNoFolder) {
    const auto first = RunThatAnswers();
    OneRun second(folder_.path());
    EXPECT_FALSE(second.HoldsFolder());
}

TEST_F(TwoRuns, FollowOneAnother) {
    RunThatAnswers().reset();
    OneRun second(folder_.path());
    EXPECT_TRUE(second.HoldsFolder());
}

TEST_F(TwoRuns, MayHaveAFolderEach) {
    const auto first = RunThatAnswers();
    const QTemporaryDir other;
    OneRun second(other.path());
    EXPECT_TRUE(second.HoldsFolder());
    EXPECT_FALSE(second.CallHolder());
}

TEST_F(TwoRuns, LeaveNothingInTheFolder) {
    const auto first = RunThatAnswers();
    EXPECT_TRUE(
        QDir(folder_.path())
            .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
}

TEST_F(TwoRuns, CallOneAnother) {
    const auto first = RunThatAnswers();
    bool called = false;
    QEventLoop loop;
    std::thread second([&] {
        called = OneRun(folder_.path()).CallHolder();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit);
    });
    loop.exec();
    second.join();
    EXPECT_TRUE(called);
    EXPECT_EQ(shown_, 1);
}

TEST_F(TwoRuns, TellWhoHoldsTheFolder) {
    const auto first = RunThatAnswers();
    const OneRun second(folder_.path());
    const QString holder = second.Holder();
    // Some systems that run in others do not tell.
    if (holder.isEmpty()) GTEST_SKIP() << "nothing is told of locks here";
    EXPECT_TRUE(holder.startsWith(QStringLiteral("process %1 of ").arg(::getpid())))
        << holder.toStdString();
}

TEST_F(TwoRuns, MindNoFolderThatIsNotThere) {
    OneRun run(QStringLiteral("/nowhere/at/all"));
    EXPECT_TRUE(run.HoldsFolder());
    EXPECT_EQ(run.Holder(), QString());
}

}  // namespace
