// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Dirty.h"

#include <gtest/gtest.h>

#include "tests/support/form_test.h"

namespace {

class AFormWithChanges : public testing::Test {
  protected:
    bool MayClose() { return dirty_.MayClose(messages_, nullptr, UnsavedWarning()); }

    FakeMessages messages_;
    Dirty dirty_;
};

TEST_F(AFormWithChanges, ClosesWithoutAQuestionWhereThereAreNone) {
    EXPECT_TRUE(MayClose());
    dirty_.Set();
    dirty_.Clear();
    EXPECT_TRUE(MayClose());
}

TEST_F(AFormWithChanges, WarnsInThreeLines) {
    dirty_.Set();
    messages_.Expect({.title = QStringLiteral("Warning!"),
                      .text = QStringLiteral("If you have made changes you should    \r\n"
                                             "click Save to save them. If you        \r\n"
                                             "continue, any changes will be lost.    "),
                      .sign = Sign::Exclamation,
                      .buttons = Buttons::OkCancel,
                      .discards = true},
                     Answer::Cancel);
    EXPECT_FALSE(MayClose());
    messages_.Expect(UnsavedWarning(), Answer::Ok);
    EXPECT_TRUE(MayClose());
    EXPECT_TRUE(dirty_.IsSet());
}

TEST_F(AFormWithChanges, StaysOpenAtANo) {
    dirty_.Set();
    const Message question{.title = QStringLiteral("Close?"),
                           .text = QStringLiteral("Really?"),
                           .buttons = Buttons::YesNo,
                           .discards = true};
    messages_.Expect(question, Answer::No);
    EXPECT_FALSE(dirty_.MayClose(messages_, nullptr, question));
    messages_.Expect(question, Answer::Yes);
    EXPECT_TRUE(dirty_.MayClose(messages_, nullptr, question));
}

}  // namespace
