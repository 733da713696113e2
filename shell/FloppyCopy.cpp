// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/FloppyCopy.h"

#include <QCoreApplication>
#include <QLabel>

#include "core/failure.h"
#include "core/text.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "shell/data_files.h"

namespace {

QString Said(const char* text) { return QCoreApplication::translate("FloppyCopy", text); }

/// Empties the status, however the copy ends.
class StatusOfCopy {
  public:
    explicit StatusOfCopy(QLabel& status) : status_(status) {}
    ~StatusOfCopy() { status_.clear(); }
    StatusOfCopy(const StatusOfCopy&) = delete;
    StatusOfCopy& operator=(const StatusOfCopy&) = delete;

  private:
    QLabel& status_;
};

}  // namespace

FloppyCopy::FloppyCopy(Program& program, QWidget& window, QLabel& status)
    : program_(program), window_(window), status_(status) {}

void FloppyCopy::CopyToFloppy() {
    const QString lineEnd = ToQString(program_.state.Crlf);
    Copy(Direction::ToFloppy, {.title = Said("Copy to floppy"),
                               .text = Said(" Copy the data files to floppy disk to   ") % lineEnd %
                                       Said(" transfer them to another computer or   ") % lineEnd %
                                       Said(" to make a backup. Put a disk in the   ") % lineEnd %
                                       Said(" drive and click OK.   "),
                               .sign = Sign::Exclamation,
                               .buttons = Buttons::OkCancel});
}

void FloppyCopy::CopyFromFloppy() {
    const QString lineEnd = ToQString(program_.state.Crlf);
    Copy(Direction::FromFloppy,
         {.title = Said("Copy from floppy"),
          .text = Said(" This will copy the data files from floppy   ") % lineEnd %
                  Said(" disk to the Lottery Quillon folder. It   ") % lineEnd %
                  Said(" will overwrite any existing data files.   "),
          .sign = Sign::Exclamation,
          .buttons = Buttons::OkCancel,
          .discards = true});
}

void FloppyCopy::Copy(Direction direction, const Message& question) {
    const Services& services = program_.services;
    if (services.messages.Show(&window_, question) != Answer::Ok) return;
    const QString path = services.chooseFolder(&window_, question.title);
    if (path.isEmpty()) return;
    QCoreApplication::processEvents();
    window_.repaint();
    QCoreApplication::processEvents();
    const Hourglass hourglass;
    const StatusOfCopy status(status_);
    try {
        CopyAll(direction, path);
    } catch (const Failure&) {
        // Kept on purpose: only here a disk that fails ends a command without a word.
    }
}

void FloppyCopy::CopyAll(Direction direction, const QString& path) {
    const std::shared_ptr<ProgramFolder> floppy = program_.services.openFolder(path);
    const auto showCount = [this](int count) { ShowCount(count); };
    if (direction == Direction::ToFloppy) {
        CopyDataFiles(program_.folder, *floppy, Replaced::Lost, showCount);
    } else {
        CopyDataFiles(*floppy, program_.folder, Replaced::Kept, showCount);
    }
}

void FloppyCopy::ShowCount(int count) {
    status_.setText(Said("Copied") % ToQString(program_.state.Crlf) % ToQString(NumberText(count)) %
                    Said(" files"));
    status_.repaint();
}
