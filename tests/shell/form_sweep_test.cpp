// SPDX-License-Identifier: GPL-3.0-or-later
// What every form keeps to, walked over the form catalogue.
#include <QAccessible>
#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QLineEdit>
#include <QRegularExpression>
#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "core/settings.h"
#include "platform/forms/RoomOnScreen.h"
#include "shell/form_catalogue.h"
#include "test_folders.h"
#include "tests/shell/every_form.h"
#include "tests/shell/help_pages.h"
#include "tests/shell/letters.h"
#include "tests/support/form_test.h"

namespace {

const std::map<std::string, Qt::GlobalColor> pictures = {
    {"SkinMain.jpg", Qt::red},        {"SkinPlay.jpg", Qt::green},
    {"SkinDatabases.jpg", Qt::blue},  {"SkinAnalyse.jpg", Qt::cyan},
    {"SkinFile.jpg", Qt::magenta},    {"SkinSyndicates.jpg", Qt::yellow},
    {"SkinHelp.jpg", Qt::darkMagenta}};

/// The background picture that the form wears; none where it is a small dialog.
std::string PictureOf(const std::string& form) {
    static const std::map<std::string, std::string> byForm = {
        {"DeleteDbaseW", ""},
        {"OpenDbase", ""},
        {"SaveEntries", ""},
        {"PrintFrm", ""},
        {"PrintSelection", ""},
        {"PrintTickets", ""},
        {"PrinterCorrection", ""},
        {"PrintSetup", "SkinFile.jpg"},
        {"About", ""},
        {"LotteryInfo", "SkinHelp.jpg"},
        {"Preferences", "SkinFile.jpg"},
        {"Backup", "SkinFile.jpg"},
        {"Biorhythm", "SkinAnalyse.jpg"},
        {"WhatIf", "SkinAnalyse.jpg"},
        {"OpenSyndicate", ""},
        {"DeleteSyndicate", ""},
        {"NewSyndicate", "SkinSyndicates.jpg"},
        {"CreateDbase", "SkinDatabases.jpg"},
        {"DbaseUpdate", "SkinDatabases.jpg"},
        {"DbaseUpdateUS", "SkinDatabases.jpg"},
        {"DbaseUpdateW", "SkinDatabases.jpg"},
        {"HistoryW", "SkinDatabases.jpg"},
        {"ImportDraws", "SkinDatabases.jpg"},
        {"StoreMyDrawsW", "SkinDatabases.jpg"},
        {"ShowMyDrawsW", "SkinDatabases.jpg"},
        {"Wheel49", "SkinPlay.jpg"}};
    const auto found = byForm.find(form);
    if (found != byForm.end()) return found->second;
    const auto second = static_cast<unsigned char>(form.size() > 1 ? form[1] : 'a');
    const bool ofFamily = std::isupper(second) != 0 || std::isdigit(second) != 0;
    if (ofFamily && form[0] == 'P') return "SkinPlay.jpg";
    if (ofFamily && form[0] == 'A') return "SkinAnalyse.jpg";
    if (ofFamily && form[0] == 'S') return "SkinSyndicates.jpg";
    ADD_FAILURE() << "which picture does " << form << " wear?";
    return {};
}

std::string PictureIn(const QColor& colour) {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

class EveryForm : public EveryFormTest {
  protected:
    /// Of what is wider than the screen the beginning.
    static void ExpectInSight(const QWidget* control) {
        if (control == nullptr) return;
        const QRect seen = control->visibleRegion().boundingRect();
        const QSize whole = control->size().boundedTo(RoomOnScreen(*control));
        if (seen.topLeft() == QPoint() && seen.height() == whole.height()) return;
        ADD_FAILURE() << control->objectName().toStdString() << ": of " << control->width() << " x "
                      << control->height() << " are seen " << seen.width() << " x "
                      << seen.height();
    }

    static QString SpokenName(QWidget* control) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
        return spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
    }
};

TEST_P(EveryForm, HasItsNameAndATitle) {
    Open();
    EXPECT_EQ(form->objectName(), QString::fromLatin1(GetParam().form));
    EXPECT_FALSE(form->windowTitle().isEmpty());
}

TEST_P(EveryForm, NamesNoTwoControlsAlike) {
    Open();
    std::set<QString> seen;
    for (const QWidget* control : Controls()) {
        EXPECT_TRUE(seen.insert(control->objectName()).second)
            << control->objectName().toStdString() << " stands twice";
    }
}

TEST_P(EveryForm, TellsAScreenReaderWhatHasTheFocus) {
    Open();
    for (QWidget* control : Controls()) {
        if (!TakesFocus(control)) continue;
        EXPECT_FALSE(SpokenName(control).isEmpty()) << control->objectName().toStdString();
    }
}

TEST_P(EveryForm, LeadsTheTabKeyInReadingOrder) {
    Open();
    std::vector<QWidget*> walk;
    for (QWidget* next = form->nextInFocusChain(); next != form.get();
         next = next->nextInFocusChain()) {
        const bool ours =
            !next->objectName().isEmpty() && !next->objectName().startsWith(QStringLiteral("qt_"));
        if (ours && form->isAncestorOf(next) && TakesFocus(next)) walk.push_back(next);
    }
    const auto placeOf = [this](const QWidget* control) {
        return QRect(control->mapTo(form.get(), QPoint()), control->size());
    };
    // The chain is a ring: it begins at the control nearest to the top left corner.
    const auto first = std::ranges::min_element(walk, {}, [&](const QWidget* control) {
        return placeOf(control).top() + placeOf(control).left();
    });
    std::rotate(walk.begin(), first, walk.end());
    // Down a column, or to the right of it: never to a place that lies both above and to the left.
    for (std::size_t i = 1; i < walk.size(); ++i) {
        const QRect from = placeOf(walk[i - 1]);
        const QRect to = placeOf(walk[i]);
        EXPECT_TRUE(to.bottom() >= from.top() || to.left() >= from.right())
            << walk[i - 1]->objectName().toStdString() << " leads back to "
            << walk[i]->objectName().toStdString();
    }
}

TEST_P(EveryForm, FitsASmallScreen) {
    Open();
    EXPECT_LE(form->minimumSizeHint().width(), 1366);
    EXPECT_LE(form->sizeHint().width(), 1366) << "a larger screen would open it too wide";
    EXPECT_LE(form->minimumSizeHint().height(), 740) << "the title bar needs room too";
    EXPECT_LE(form->width(), 1366);
    EXPECT_LE(form->height(), 740);
}

// Runs on a small screen too.
TEST_P(EveryForm, FitsTheScreenInLettersOfEverySize) {
    for (const int points : letterSizes) {
        const Letters letters(points);
        Open();
        const QSize room = RoomOnScreen(*form);
        EXPECT_LE(form->width(), room.width()) << points << " pt";
        EXPECT_LE(form->height(), room.height()) << points << " pt";
        ExpectInSight(form->focusWidget());
        ExpectInSight(form->findChild<QWidget*>(QStringLiteral("Said")));
        form.reset();
    }
}

TEST_P(EveryForm, TakesNoLineEndIntoATextBox) {
    Open();
    QApplication::clipboard()->setText(QStringLiteral("1\r\n2"));
    for (QLineEdit* box : form->findChildren<QLineEdit*>()) {
        if (box->isReadOnly()) continue;
        box->selectAll();
        box->paste();
        EXPECT_FALSE(box->text().contains(QRegularExpression(QStringLiteral("[\r\n]"))))
            << box->objectName().toStdString();
    }
}

TEST_P(EveryForm, ClosesOnEsc) {
    Open();
    if (std::string(GetParam().form) == "CreateDbase") {
        program.messages.Expect({.title = QStringLiteral("Are you sure?"),
                                 .text = QStringLiteral("Close and discard data?    "),
                                 .sign = Sign::Question,
                                 .buttons = Buttons::YesNo},
                                Answer::Yes);
    }
    if (std::string(GetParam().form) == "PrintSetup") {
        program.messages.Expect(
            {.title = QStringLiteral("Close"),
             .text = QStringLiteral("Close? (Any changes not saved will be lost.)  "),
             .sign = Sign::Question,
             .buttons = Buttons::YesNo},
            Answer::Yes);
    }
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_P(EveryForm, OpensItsPlaceInItsHelpPageOnF1) {
    Open();
    QTest::keyClick(form.get(), Qt::Key_F1);
    EXPECT_EQ(program.pages, std::vector<QString>{HelpPlaceOf(GetParam())});
}

TEST_P(EveryForm, TakesTheBackgroundColourOfTheSettings) {
    if (PictureOf(GetParam().form).empty()) return;
    program.state.Settings(setting::SkinBits) = "2";
    program.state.Settings(setting::BackgroundColour) = "&HC0FFC0";
    Open();
    EXPECT_EQ(form->palette().color(QPalette::Window), QColor(0xC0, 0xFF, 0xC0));
}

TEST_P(EveryForm, WearsThePictureOfItsFamily) {
    const std::string picture = PictureOf(GetParam().form);
    program.state.Settings(setting::SkinBits) = "1";
    for (const auto& [name, colour] : pictures) {
        program.folder.Write(name, PictureIn(colour));
    }
    Open();
    const QColor corner = form->grab().toImage().pixelColor(1, 1);
    for (const auto& [name, colour] : pictures) {
        EXPECT_EQ(corner == QColor(colour), picture == name) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryForm, testing::ValuesIn(ExistingForms()), FormTestName);

}  // namespace
