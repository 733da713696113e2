// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/session.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <utility>

#include "entries/AppendShownLines.h"
#include "platform/system/LocaleRegion.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "shell/Toolbar.h"
#include "tests/faults/system_calls.h"

namespace {

constexpr Date day = std::chrono::year(2005) / 6 / 1;

template <typename Control>
Control& Find(const QObject& parent, const char* name) {
    auto* control = parent.findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) throw std::runtime_error(std::string("no such control: ") + name);
    return *control;
}

}  // namespace

Session* Session::hearing_ = nullptr;

Session::Session(const QString& path, Record& record)
    : folder(path, {.now = [] { return Moment(std::chrono::local_days(day)); },
                    .rescuePlaces = {QString::fromStdString(RescueFolderOf(path.toStdString())) %
                                     QLatin1Char('/')}}),
      record_(record),
      path_(path.toStdString()),
      random_([] { return std::uint64_t{1}; }),
      messages_(*this),
      services_{.seconds = [] { return 0.0; },
                .today = [] { return day; },
                .random = random_,
                .region = RegionOf(QLocale(QLocale::English, QLocale::UnitedKingdom)),
                .messages = messages_,
                .openPage = [](const QString&) {},
                .saveLines = [this](Form* form, Grid& grid) { SaveLines(program_, form, grid); },
                .printLines = {}},
      program_{.state = state, .folder = folder, .services = services_},
      status_(*this) {
    services_.fetchPage = [this](const QString& address, const FetchProgress&) {
        const QString problem = pages[address].empty() ? QStringLiteral("No page.") : QString();
        return FetchedPage{.bytes = pages[address], .problem = problem};
    };
    services_.fetchURL = [this](const QString& address) { return pages[address]; };
    services_.chooseFolder = [this](QWidget*, const QString&) { return chosenPath; };
    services_.chooseFile = [this](QWidget*, const QString&, const QString&) { return chosenPath; };
    services_.openFolder = [](const QString& other) { return std::make_shared<DiskFolder>(other); };
    services_.folderPath = path;
    services_.printers = &printers_;
    state.Crlf = "\r\n";
    hearing_ = this;
}

Session::~Session() {
    if (hearing_ == this) hearing_ = heardBefore_;
}

void Session::Start() {
    window_ = std::make_unique<Quillon>(program_);
    window_->findChild<Toolbar*>()->installEventFilter(&status_);
    window_->Load();
    window_->show();
}

std::string Session::OtherFolder() const { return OtherFolderOf(path_); }

void Session::Choose(const char* entry) {
    Step();
    auto* action = &Find<QAction>(*window_, entry);
    bool done = false;
    QTimer::singleShot(0, action, [action, &done] {
        action->trigger();
        done = true;
    });
    while (!done) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Session::InForm(const char* entry, const char* form,
                     const std::function<void(QDialog&)>& step) {
    InForm([this, entry] { Choose(entry); }, form, step);
}

void Session::InForm(const std::function<void()>& open, const char* form,
                     const std::function<void(QDialog&)>& step) {
    bool driven = false;
    QTimer driver;
    driver.setInterval(0);
    QObject::connect(&driver, &QTimer::timeout, &driver, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (driven || dialog == nullptr || dialog->objectName() != QLatin1String(form)) return;
        driven = true;
        driver.stop();
        const QPointer<QDialog> guard(dialog);
        step(*dialog);
        if (guard && guard->isVisible()) {
            record_.Add(Record::Kind::Problem, "a form stays open", form);
            guard->done(0);
        }
    });
    driver.start();
    open();
}

void Session::Press(QWidget& form, const char* button) {
    auto& pressed = Find<QAbstractButton>(form, button);
    if (!pressed.isEnabled()) record_.Add(Record::Kind::Problem, "a button is disabled", button);
    Do(form, [&pressed] { QTest::mouseClick(&pressed, Qt::LeftButton); });
}

void Session::TakeBack(QWidget& form) {
    QWidget* focus = form.focusWidget() == nullptr ? &form : form.focusWidget();
    Do(form, [focus] { QTest::keyClick(focus, Qt::Key_Z, Qt::ControlModifier); });
}

void Session::Do(QWidget& form, const std::function<void()>& action) {
    saidLine_ = form.findChild<QLabel*>(QStringLiteral("Said"));
    heard_.clear();
    Step();
    action();
    Hear();
}

void Session::Fill(QWidget& form, const char* box, const char* text) {
    Find<QLineEdit>(form, box).setText(QString::fromLatin1(text));
}

void Session::ChooseCell(QWidget& form, int row, int column) {
    auto& grid = Find<Grid>(form, "MSFlexGrid1");
    grid.ScrollToRow(row);
    QApplication::processEvents();
    const QModelIndex index = grid.model()->index(row - 1, column);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier,
                      grid.visualRect(index).center());
}

void Session::ChooseLine(QWidget& form, const char* list, int line) {
    Find<ListBox>(form, list).SetIndex(line);
}

void Session::Said(const QString& text) {
    record_.Add(Record::Kind::Said, text.toStdString(), Snapshot());
}

void Session::Step() { record_.Add(Record::Kind::Step, {}, Snapshot()); }

// Files that nobody watches may be endless.
std::string Session::Snapshot() const {
    if (!system_calls::Armed()) return {};
    const system_calls::Pause pause;
    return StateOf(path_);
}

void Session::Hear() {
    if (hearing_ == nullptr || !hearing_->saidLine_) return;
    const QString text = hearing_->saidLine_->text();
    if (text != std::exchange(hearing_->heard_, text) && !text.isEmpty()) hearing_->Said(text);
}

bool Session::Status::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Paint) return false;
    const QString text = static_cast<QLabel*>(watched)->text();
    if (text != std::exchange(shown_, text) && !text.isEmpty()) session_.Said(text);
    return false;
}

Answer Session::Messages::Show(QWidget*, const Message& message) {
    const bool asks = message.buttons != Buttons::Ok;
    session_.Said((asks ? QStringLiteral("? ") : QString()) % message.title % QLatin1Char('|') %
                  message.text);
    return message.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
}
