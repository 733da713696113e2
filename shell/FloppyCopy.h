// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/system/Services.h"

class QLabel;
class QWidget;
struct Message;

/// The two commands that take the data files to another disk and back. The disk is a folder that
/// the user chooses each time.
///
/// Whatever fails, the disk or a file on it, ends the copy without a word; files copied up to then
/// stay. While it goes on, the status tells how many those are.
class FloppyCopy {
  public:
    FloppyCopy(Program& program, QWidget& window, QLabel& status);

    void CopyToFloppy();

    /// What is replaced is kept as all of the user's is. The settings that come from the disk are
    /// not read, and written over at the next quit.
    void CopyFromFloppy();

  private:
    enum class Direction { ToFloppy, FromFloppy };
    void Copy(Direction direction, const Message& question);
    void CopyAll(Direction direction, const QString& path);
    void ShowCount(int count);

    Program& program_;
    QWidget& window_;
    QLabel& status_;
};
