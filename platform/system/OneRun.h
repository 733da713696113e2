// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <memory>

class QLocalServer;

/// One program a folder: two that work on the same files would undo each other's work.
///
/// The first run holds the folder as long as its process lives, and no longer, however that ends;
/// nothing is left behind in the folder. A later run calls the first one, which shows itself.
class OneRun {
  public:
    /// Takes hold of the folder. Where its disk cannot be told to hold one, as some on a network,
    /// the folder counts as held where a run on this computer answers for it.
    explicit OneRun(const QString& folder);
    ~OneRun();
    OneRun(const OneRun&) = delete;
    OneRun& operator=(const OneRun&) = delete;

    /// Whether this run holds the folder. One that is just ending is waited for, a moment.
    bool HoldsFolder();

    /// Calls the run that holds the folder; whether it has shown itself. One that is at work is
    /// waited for, a little longer than a form works at most.
    bool CallHolder() const;

    /// Who holds the folder, such as "process 1234 of ann"; empty where the system does not tell.
    QString Holder() const;

    /// From now on a later run is answered, and `show` is called for each.
    void AnswerBy(std::function<void()> show);

  private:
    enum class Hold { Held, Taken, Impossible };

    Hold TakeHold() const;
    void Answer();

    QString folder_;
    int descriptor_;
    std::unique_ptr<QLocalServer> server_;
    std::function<void()> show_;
};
