// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a window and ends as soon as it has been painted: `empty` an empty QMainWindow, else the
// main window on the folder of that path.
#include <QMainWindow>

#include "platform/system/Clock.h"
#include "platform/system/DiskFolder.h"
#include "platform/system/LocaleRegion.h"
#include "platform/system/MessageBoxes.h"
#include "shell/Application.h"
#include "shell/Quillon.h"

namespace {

/// Ends the process once the window's paint events have gone through.
class EndAfterPaint final : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            QMetaObject::invokeMethod(
                this, [] { Application::End(0); }, Qt::QueuedConnection);
        }
        return false;
    }
};

int ShowUntilPainted(QMainWindow& window) {
    EndAfterPaint end;
    window.installEventFilter(&end);
    window.show();
    return QApplication::exec();
}

int ShowEmptyWindow(int argumentCount, char** arguments) {
    Application application(argumentCount, arguments);
    QMainWindow window;
    window.resize(1000, 660);
    return ShowUntilPainted(window);
}

int ShowMainWindow(int argumentCount, char** arguments) {
    Application application(argumentCount, arguments);
    const auto state = std::make_unique<State>();
    DiskFolder folder(QString::fromLocal8Bit(arguments[1]));
    Random random(SeedOfTheMoment);
    DesktopMessageBoxes messages;
    Services services{.seconds = MonotonicSeconds,
                      .today = Today,
                      .random = random,
                      .region = RegionOf(QLocale::system()),
                      .messages = messages,
                      .openPage = {},
                      .saveLines = {},
                      .printLines = {}};
    Program program{.state = *state, .folder = folder, .services = services};
    Quillon window(program);
    window.Load();
    return ShowUntilPainted(window);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 2) return 2;
    return std::string(arguments[1]) == "empty" ? ShowEmptyWindow(argumentCount, arguments)
                                                : ShowMainWindow(argumentCount, arguments);
}
