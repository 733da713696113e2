// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/date.h"
#include "core/program_folder.h"
#include "core/random.h"
#include "core/state.h"
#include "platform/system/FetchedPage.h"

class Form;
class Grid;
class MessageBoxes;
class Printers;
class WindowStates;

/// What a printed diary has around its rows, as it stands in the boxes of its form.
struct DiaryFrame {
    QString syndicate;
    QString manager;
    std::array<QString, 4> address;
    QString phone;
    QString email;
    QString total;
};

/// The world outside the program, built once in `main()`; tests bring their own.
struct Services {
    std::function<double()> seconds;               ///< Monotonic clock, in seconds.
    std::function<Date()> today;                   ///< The calendar day.
    Random& random;                                ///< Source of random numbers.
    Region region;                                 ///< Dates as the user's region writes them.
    MessageBoxes& messages;                        ///< Modal questions.
    std::function<void(const QString&)> openPage;  ///< Opens a web address or a file of the
                                                   ///< program's folder, without waiting.
    std::function<void(Form*, Grid&)> saveLines;   ///< Saves the lines of a grid, and says so in
                                                   ///< the form.
    std::function<void(Form*, Grid&)> printLines;  ///< Prints them; none: no printing.
    std::function<void(Form*, Grid&)> printDraws = {};  ///< Prints draws.
    std::function<void(Form&)> printForm = {};          ///< Prints a form as it stands, landscape.
    std::function<void(Form*, Grid&)> printStats = {};  ///< Prints the statistics of numbers.
    std::function<void(Form*, Grid&)> printEntries = {};   ///< Prints saved entries.
    std::function<void(Form*)> printMembers = {};          ///< Prints the members of the syndicate.
    std::function<void(Form*, Grid&)> printPayments = {};  ///< Prints the members' payments.
    std::function<void(Form*, Grid&, const DiaryFrame&)> printDiary = {};  ///< Prints the diary.
    /// Fetches a web page and waits for it, while events run; empty where it cannot be had whole.
    std::function<std::string(const QString& address)> fetchURL = [](const QString&) {
        return std::string();
    };
    /// The same; says why where the page cannot be had, and meanwhile how much of it has come.
    std::function<FetchedPage(const QString& address, const FetchProgress& progress)> fetchPage =
        [](const QString&, const FetchProgress&) { return FetchedPage(); };
    /// Lets the user choose a colour without transparency, at first `current`; nothing where they
    /// think better of it.
    std::function<std::optional<QColor>(QWidget* parent, const QColor& current)> chooseColour =
        [](QWidget*, const QColor&) { return std::nullopt; };
    /// Lets the user choose a folder that there is, and gives its path; empty where they think
    /// better of it.
    std::function<QString(QWidget* parent, const QString& title)> chooseFolder =
        [](QWidget*, const QString&) { return QString(); };
    /// The same for a file to read; `filter` is such as "Texts (*.txt *.csv);;All files (*)".
    std::function<QString(QWidget* parent, const QString& title, const QString& filter)>
        chooseFile = [](QWidget*, const QString&, const QString&) { return QString(); };
    /// Another folder, of the path that the user has chosen. One that cannot be opened is a
    /// `Failure`.
    std::function<std::shared_ptr<ProgramFolder>(const QString& path)> openFolder = {};
    QString folderPath = {};          ///< Where the program's folder is, as the user reads it.
    Printers* printers = nullptr;     ///< The printers; none: nothing is ever printed.
    WindowStates* windows = nullptr;  ///< Where windows keep their sizes; none: they do not.
};

/// What every form is given.
struct Program {
    State& state;
    ProgramFolder& folder;
    Services& services;
};
