// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the forms that download draws have in common.
#pragma once

#include <QApplication>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolTip>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/settings.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"

inline const Message saved{.title = QStringLiteral("Saved"),
                           .text = QStringLiteral("URLs updated.    ")};

/// The page with blanks behind it up to that size.
inline std::string Filled(const std::string& page, std::size_t size) {
    return page + std::string(size - page.size(), ' ');
}

/// A download form over web pages that the test prepared; each fetch takes so many tenths of a
/// second as it says.
template <typename FormType>
class DownloadFormTest : public testing::Test {
  protected:
    DownloadFormTest() {
        MakeDefaultSettings(test_.state, test_.folder);
        test_.services.fetchPage = [this](const QString& address, const FetchProgress& progress) {
            fetched_.push_back(address);
            if (onFetch_) onFetch_();
            auto* timer = Find<QTimer>(*form_, "Timer1");
            timer->setInterval(std::chrono::hours(1));  // ticks only as the test says
            for (int tick = 0; tick < ticksAFetch_; ++tick) {
                QMetaObject::invokeMethod(timer, "timeout");
                progress(1024 * (tick + 1));
                said_.push_back(Said());
            }
            const QString problem =
                pages_[address].empty() ? QStringLiteral("No page.") : QString();
            return FetchedPage{.bytes = pages_[address], .problem = problem};
        };
    }

    void Open() {
        form_ = std::make_unique<FormType>(test_.program, nullptr);
        form_->Load();
        form_->show();
    }

    void Run() { Click(*form_, "OKButton"); }

    QString AddressOf(int slot) { return ToQString(test_.state.Settings(slot)); }

    ListBox& List() { return *Find<ListBox>(*form_, "List2"); }

    /// What the tip over a line of the list says.
    QString TipOver(int line) {
        List().scrollToItem(List().item(line));
        const QPoint place = List().visualItemRect(List().item(line)).center();
        QHelpEvent help(QEvent::ToolTip, place, List().viewport()->mapToGlobal(place));
        QApplication::sendEvent(List().viewport(), &help);
        return QToolTip::text();
    }

    /// What stands beside the buttons.
    QString Said() { return Find<QLabel>(*form_, "Said")->text(); }

    QPushButton& Button(const char* name) { return *Find<QPushButton>(*form_, name); }

    QLineEdit& Box(int index) {
        return *Find<QLineEdit>(*form_, ("Text1(" + std::to_string(index) + ")").c_str());
    }

    QStringList Progress() {
        QStringList lines;
        for (int line = 0; line < List().count(); ++line) lines += List().item(line)->text();
        return lines;
    }

    void ExpectOneRunUnderTheHourglass() {
        Open();
        auto* timer = Find<QTimer>(*form_, "Timer1");
        EXPECT_EQ(timer->interval(), 100);
        EXPECT_FALSE(timer->isActive());
        onFetch_ = [&] {
            EXPECT_FALSE(Button("OKButton").isEnabled());
            EXPECT_FALSE(Button("CancelButton").isEnabled());
            EXPECT_TRUE(timer->isActive());
            ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
            EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        };
        Run();
        EXPECT_FALSE(fetched_.empty());
        EXPECT_FALSE(Button("OKButton").isEnabled());
        EXPECT_TRUE(Button("CancelButton").isEnabled());
        EXPECT_FALSE(timer->isActive());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        Click(*form_, "CancelButton");
        EXPECT_FALSE(form_->isVisible());
        onFetch_ = {};
        Open();
        EXPECT_TRUE(Button("OKButton").isEnabled());
        EXPECT_TRUE(Progress().isEmpty());
    }

    void ExpectEachSaveToBeWholeOrFail(const std::string& database) {
        test_.folder.Write(database, "old draws");
        const auto before = test_.folder.Snapshot();
        for (std::size_t operation = 0;; ++operation) {
            Open();
            test_.folder.FailAtOperation(operation);
            Run();
            test_.folder.FailAtOperation(std::nullopt);
            if (!TakeFailure()) break;
            EXPECT_EQ(test_.folder.Read(database), "old draws") << operation;
            ASSERT_LT(operation, 20U);
        }
        EXPECT_NE(test_.folder.Read(database), before.at(database));
        for (std::size_t bytes = 0; bytes < 3000; bytes += 100) {
            test_.folder.Write(database, "old draws");
            Open();
            test_.folder.FailAfterBytes(bytes);
            Run();
            test_.folder.FailAfterBytes(std::nullopt);
            const bool failed = TakeFailure().has_value();
            EXPECT_EQ(test_.folder.Read(database) == "old draws", failed) << bytes;
        }
    }

    void ExpectNoClosingMeanwhile() {
        Open();
        onFetch_ = [this] {
            QTest::keyClick(form_.get(), Qt::Key_Escape);
            form_->close();
            EXPECT_TRUE(form_->isVisible());
        };
        Run();
        EXPECT_TRUE(form_->isVisible());
        QTest::keyClick(form_.get(), Qt::Key_Escape);
        EXPECT_FALSE(form_->isVisible());
    }

    TestProgram test_;
    std::map<QString, std::string> pages_;
    std::vector<QString> fetched_;
    QStringList said_;
    std::function<void()> onFetch_;
    int ticksAFetch_ = 0;
    std::unique_ptr<FormType> form_;
};
