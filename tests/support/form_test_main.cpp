// SPDX-License-Identifier: GPL-3.0-or-later
// What a program of form tests begins with, and where a failure ends that leaves an event.
#include "core/failure.h"
#include "tests/support/form_test.h"

namespace {

std::optional<std::string> lastFailure;
bool failureLeftThroughQt = false;

/// Records a failure where the program would report it and end.
class TestApplication final : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const Failure& failure) {
            lastFailure = failure.what();
            failureLeftThroughQt = true;
            CloseDialogs();
            return true;
        }
    }

    static void CloseDialogs() {
        const auto widgets = QApplication::topLevelWidgets();
        for (QWidget* widget : widgets) {
            if (auto* dialog = qobject_cast<QDialog*>(widget); dialog != nullptr) {
                if (dialog->isVisible()) dialog->done(0);
            }
        }
    }
};

class FailureListener final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo&) override {
        if (const auto failure = TakeFailure()) {
            ADD_FAILURE() << "nobody expected this failure: " << *failure;
        }
    }
};

}  // namespace

/// Asked by the leak checker at the end. What a failure meets on its way out of Qt's event handling
/// is not cleaned up, as Qt's libraries expect no exceptions; the program would end there, and a
/// test program can no longer tell such leaks from real ones.
extern "C" int __lsan_is_turned_off();
extern "C" int __lsan_is_turned_off() { return failureLeftThroughQt ? 1 : 0; }

std::optional<std::string> TakeFailure() {
    auto failure = lastFailure;
    lastFailure.reset();
    return failure;
}

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    TestApplication application(argumentCount, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new FailureListener);
    return RUN_ALL_TESTS();
}
