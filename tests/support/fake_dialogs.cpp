// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/fake_dialogs.h"

#include <gtest/gtest.h>

#include "core/failure.h"

namespace {

/// Takes the next answer, where one was prepared.
template <typename Answer>
Answer Next(std::deque<Answer>& answers, const char* dialog) {
    if (answers.empty()) {
        ADD_FAILURE() << "nobody expected a dialog for " << dialog;
        return Answer();
    }
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

}  // namespace

FakeDialogs::~FakeDialogs() {
    EXPECT_TRUE(colours.empty()) << "a dialog for a colour never came";
    EXPECT_TRUE(folders.empty()) << "a dialog for a folder never came";
    EXPECT_TRUE(files.empty()) << "a dialog for a file never came";
}

std::optional<QColor> FakeDialogs::Colour(const QColor& current) {
    currentColours.push_back(current);
    return Next(colours, "a colour");
}

QString FakeDialogs::Folder(const QString& title) {
    titles.push_back(title);
    return Next(folders, "a folder");
}

QString FakeDialogs::File(const QString& title, const QString& filter) {
    titles.push_back(title);
    filters.push_back(filter);
    return Next(files, "a file");
}

std::shared_ptr<ProgramFolder> FakeDialogs::OpenFolder(const QString& path) const {
    const auto found = otherFolders.find(path);
    if (found == otherFolders.end()) {
        throw Failure("There is no folder \"" + path.toStdString() + "\".");
    }
    return found->second;
}
