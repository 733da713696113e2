// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/form_test.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QRegularExpression>
#include <QTimer>
#include <iostream>

#include "core/failure.h"
#include "platform/system/LocaleRegion.h"

namespace {

void PrintMessage(const char* what, const Message& message) {
    ADD_FAILURE() << what << ": title \"" << message.title.toStdString() << "\", text \""
                  << message.text.toStdString() << "\"";
}

bool Matches(const Message& expected, Message message) {
    message.discards = message.discards && expected.discards;
    return expected == message;
}

/// Whether a question sounds as if its Yes deleted or threw away something.
bool SoundsDiscarding(const Message& message) {
    static const QRegularExpression words(
        QStringLiteral(
            "\\b(delete|discard|erase|lost|lose|overwrite|remove|reset|without saving)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    const QString all = message.title % QLatin1Char(' ') % message.text;
    return message.buttons != Buttons::Ok && all.contains(words);
}

}  // namespace

FakeMessages::~FakeMessages() {
    for (const auto& [message, answer] : expected_) {
        PrintMessage("this message never came", message);
    }
}

void FakeMessages::Expect(const Message& message, Answer answer) {
    expected_.emplace_back(message, answer);
}

Answer FakeMessages::Show(QWidget*, const Message& message) {
    ++shown_;
    if (SoundsDiscarding(message) && !message.discards) {
        PrintMessage("a question that discards something is to be marked so", message);
    }
    if (expected_.empty()) {
        PrintMessage("nobody expected this message", message);
        return message.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
    const auto [expected, answer] = expected_.front();
    expected_.pop_front();
    if (!Matches(expected, message)) {
        PrintMessage("expected this message", expected);
        PrintMessage("and this one came", message);
    }
    return answer;
}

TestProgram::TestProgram()
    : today(std::chrono::year(2005), std::chrono::June, std::chrono::day(1)),
      random([this] { return seed; }),
      services{
          .seconds = [this] { return now += tick; },
          .today = [this] { return today; },
          .random = random,
          .region = RegionOf(QLocale(QLocale::English, QLocale::UnitedKingdom)),
          .messages = messages,
          .openPage = [this](const QString& page) { pages.push_back(page); },
          .saveLines = {},
          .printLines = {},
          .chooseColour = [this](QWidget*,
                                 const QColor& current) { return dialogs.Colour(current); },
          .chooseFolder = [this](QWidget*, const QString& title) { return dialogs.Folder(title); },
          .chooseFile = [this](QWidget*, const QString& title,
                               const QString& filter) { return dialogs.File(title, filter); },
          .openFolder = [this](const QString& path) { return dialogs.OpenFolder(path); },
          .folderPath = QStringLiteral("/home/anna/lottery"),
          .printers = &printers},
      program{.state = state, .folder = folder, .services = services} {
    state.Crlf = "\r\n";
}

QObject* FindControl(const QObject& parent, const QString& name) {
    if (auto* found = parent.findChild<QObject*>(name)) return found;
    std::string names;
    const auto children = parent.findChildren<QObject*>();
    for (const QObject* child : children) {
        const QString childName = child->objectName();
        if (childName.isEmpty() || childName.startsWith(QStringLiteral("qt_"))) continue;
        names += childName.toStdString() + " ";
    }
    ADD_FAILURE() << "no control \"" << name.toStdString() << "\"; there are: " << names;
    return nullptr;
}

void Click(const QObject& parent, const char* name) {
    auto* widget = Find<QWidget>(parent, name);
    // A check box or option takes clicks on its mark only, not on the room beside its words.
    const QPoint place = widget->inherits("QCheckBox") || widget->inherits("QRadioButton")
                             ? QPoint(10, widget->height() / 2)
                             : widget->rect().center();
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, place);
}

void Paste(QWidget& widget, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    widget.setFocus();
    QTest::keySequence(&widget, QKeySequence::Paste);
}

void Type(const QObject& parent, const char* name, const QString& text) {
    auto* widget = Find<QWidget>(parent, name);
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(widget, Qt::Key_Delete);
    QTest::keyClicks(widget, text);
}

void InDialog(const std::function<void()>& open, const std::function<void(QDialog&)>& drive) {
    bool driven = false;
    QTimer driver;
    driver.setInterval(0);
    QObject::connect(&driver, &QTimer::timeout, &driver, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || driven) return;
        driven = true;
        driver.stop();
        const QPointer<QDialog> guard(dialog);
        try {
            drive(*dialog);
        } catch (const Failure&) {
            if (guard) guard->done(0);
            throw;
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
        if (guard && guard->isVisible()) guard->done(0);
    });
    driver.start();
    open();
    EXPECT_TRUE(driven) << "no dialog appeared";
}
