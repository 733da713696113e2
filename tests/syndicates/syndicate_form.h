// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/failure.h"
#include "core/settings.h"
#include "platform/system/LocaleRegion.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "syndicates/members.h"
#include "syndicates/syndicate_files.h"
#include "tests/support/form_test.h"

inline const Message unsaved{.title = QStringLiteral("Warning!"),
                             .text = QStringLiteral("If you have made changes you should    \r\n"
                                                    "click Save to save them. If you        \r\n"
                                                    "continue, any changes will be lost.    "),
                             .sign = Sign::Exclamation,
                             .buttons = Buttons::OkCancel,
                             .discards = true};

inline const Message inputProblem{
    .title = QStringLiteral("Error"),
    .text = QStringLiteral(" There was a problem with the input.  \r\n"
                           " Please check it and try again.  \r\n"),
    .sign = Sign::Information};

inline Message ChangedOutsideMessage(const char* file) {
    return {.title = QStringLiteral("Lottery Quillon World"),
            .text = QLatin1String(file) %
                    QStringLiteral(" has been changed by another program since it was\r\n"
                                   "shown here. Nothing is saved now; the file is read anew.\r\n"
                                   "What you had here is kept in Backup/Undo."),
            .sign = Sign::Exclamation};
}

/// A form with the syndicate "Winners" open, whose manager is Ann.
template <typename FormType>
class SyndicateForm : public testing::Test {
  protected:
    SyndicateForm() {
        StartSyndicate(test_.state, test_.folder,
                       {.syndicate = "Winners",
                        .manager = {"Ann", "1, High Street", "Town", "", "", "555", "ann@x"}});
    }

    void AddMembers(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            AddMember(test_.state, {.texts = {name}, .payBy = "Cash"});
        }
        SaveSyndicate(test_.state, test_.folder);
    }

    void Open() {
        form_ = std::make_unique<FormType>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    void Run(const char* command) { Click(*form_, command); }

    /// Closes the form by its button, which is to ask nothing.
    void ExpectNoChanges(const char* closeButton) {
        Run(closeButton);
        EXPECT_FALSE(form_->isVisible());
    }

    /// Begins to close the form by its button, which is to ask about changes, and stays.
    void ExpectChanges(const char* closeButton) {
        test_.messages.Expect(unsaved, Answer::Cancel);
        Run(closeButton);
        EXPECT_TRUE(form_->isVisible());
    }

    QString Label(const char* name) { return Find<QLabel>(*form_, name)->text(); }
    QString Tip(const char* name) { return Find<QWidget>(*form_, name)->toolTip(); }
    QString Caption(const char* name) { return Find<QPushButton>(*form_, name)->text(); }
    QLineEdit& Box(const char* name) { return *Find<QLineEdit>(*form_, name); }
    Grid& Table() { return *Find<Grid>(*form_, "MSFlexGrid1"); }
    ListBox& List() { return *Find<ListBox>(*form_, "List1"); }
    const std::string& Member(int row, int column) {
        return View(test_.state).Members(row, column);
    }
    std::string Cell(int row, int column) { return FromQString(Table().Cell(row, column)); }

    void ClickCell(int row, int column) {
        Table().ScrollToRow(row);
        QApplication::processEvents();
        const QModelIndex index = Table().model()->index(row - 1, column);
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Table().visualRect(index).center());
    }

    void UseRegion(QLocale::Language language, QLocale::Country country) {
        test_.services.region = RegionOf(QLocale(language, country));
    }

    TestProgram test_;
    std::unique_ptr<FormType> form_;
};
