// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/memory_folder.h"
#include "platform/forms/Form.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/Services.h"
#include "tests/support/fake_dialogs.h"
#include "tests/support/fake_printers.h"

/// Answers to the messages that a test expects, in their order. A message that nobody prepared and
/// an answer left over both fail the test, and so does a question of deleting or losing something
/// that is not marked as one. An expectation that does not say whether the message discards
/// something takes both.
class FakeMessages final : public MessageBoxes {
  public:
    ~FakeMessages() override;
    void Expect(const Message& message, Answer answer = Answer::Ok);
    Answer Show(QWidget* parent, const Message& message) override;
    int Shown() const { return shown_; }

  private:
    std::deque<std::pair<Message, Answer>> expected_;
    int shown_ = 0;
};

/// A program with its folder in memory, a clock that stands still unless told otherwise, a fixed
/// day (Wednesday 1 June 2005), and a fixed seed. Every page opened is recorded.
struct TestProgram {
    TestProgram();

    State state;
    MemoryFolder folder;
    double now = 0;   ///< What the clock says.
    double tick = 0;  ///< What each look at the clock adds to it.
    Date today;
    std::uint64_t seed = 1;
    Random random;
    FakeMessages messages;
    FakeDialogs dialogs;
    FakePrinters printers;
    std::vector<QString> pages;
    Services services;
    Program program;
};

/// Removes and returns the failure that ended an event since the last call, if any. One that no
/// test takes fails the test.
std::optional<std::string> TakeFailure();

/// The control of that name below `parent`; a miss fails the test and prints the names there are.
QObject* FindControl(const QObject& parent, const QString& name);

template <typename Control>
Control* Find(const QObject& parent, const char* name) {
    auto* control = qobject_cast<Control*>(FindControl(parent, QString::fromLatin1(name)));
    if (control == nullptr) {
        throw std::runtime_error(std::string("no such control: ") + name);
    }
    return control;
}

/// A real click with the left button.
void Click(const QObject& parent, const char* name);

/// Pastes the text into a control.
void Paste(QWidget& widget, const QString& text);

/// Replaces the text of a box by typing.
void Type(const QObject& parent, const char* name, const QString& text);

/// Runs `open`, which is to show a modal dialog, and `drive` inside it; whatever `drive` leaves
/// open is closed, and a step that fails does not hang the run. Fails the test where no dialog
/// appears.
void InDialog(const std::function<void()>& open, const std::function<void(QDialog&)>& drive);
