// SPDX-License-Identifier: GPL-3.0-or-later
// What people who work by keyboard, by ear or with large letters need of every form.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>
#include <map>
#include <set>

#include "platform/forms/RoomOnScreen.h"
#include "platform/widgets/OutlinedStyle.h"
#include "shell/form_catalogue.h"
#include "tests/shell/every_form.h"
#include "tests/shell/letters.h"
#include "tests/shell/main_window.h"
#include "tests/support/sample_lotteries.h"

namespace {

/// Everything below an element of the accessibility tree that is to be seen.
void Collect(QAccessibleInterface* element, std::vector<QAccessibleInterface*>& all) {
    all.push_back(element);
    for (int i = 0; i < element->childCount(); ++i) {
        QAccessibleInterface* child = element->child(i);
        if (child != nullptr && !child->state().invisible) Collect(child, all);
    }
}

/// The parts of controls that Qt makes are not named by us.
bool IsOurs(const QWidget* control) {
    return !control->objectName().isEmpty() &&
           !control->objectName().startsWith(QStringLiteral("qt_"));
}

bool TabsTo(const QWidget* control) {
    return control->isVisible() && control->isEnabled() &&
           (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr;
}

void ExpectRolesAndNames(QWidget& window) {
    std::vector<QAccessibleInterface*> all;
    Collect(QAccessible::queryAccessibleInterface(&window), all);
    EXPECT_GT(all.size(), 3U);
    for (QAccessibleInterface* element : all) {
        const QObject* object = element->object();
        const std::string name = object != nullptr ? object->objectName().toStdString() : "a part";
        EXPECT_NE(element->role(), QAccessible::NoRole) << name;
        const auto* widget = qobject_cast<const QWidget*>(object);
        const bool named = widget == nullptr || widget->focusProxy() != nullptr ||
                           (widget->focusPolicy() & Qt::TabFocus) == 0 ||
                           widget->objectName().startsWith(QStringLiteral("qt_"));
        if (named) continue;
        const QString spoken = element->text(QAccessible::Name);
        EXPECT_FALSE(spoken.trimmed().isEmpty()) << name;
        // A box is called by its choice, and what it chooses is told by its label.
        const bool labelled =
            !widget->accessibleName().isEmpty() || !element->relations(QAccessible::Label).empty();
        EXPECT_TRUE(labelled || qobject_cast<const QComboBox*>(widget) == nullptr) << name;
    }
}

/// What Tab comes to, until it has come to nothing new for a while: within a date it goes from
/// day to month to year.
std::set<QWidget*> ReachedByTab(QWidget& window) {
    constexpr int parts = 12;
    std::set<QWidget*> reached;
    for (int known = 0; known < parts; ++known) {
        QWidget* focused = window.focusWidget();
        QTest::keyClick(focused != nullptr ? focused : &window, Qt::Key_Tab);
        if (reached.insert(window.focusWidget()).second) known = 0;
    }
    return reached;
}

/// Of options that exclude each other only the one chosen is reached by Tab, the others by arrows.
bool IsAnOptionBeside(const QWidget* control) {
    const auto* option = qobject_cast<const QRadioButton*>(control);
    return option != nullptr && !option->isChecked();
}

/// What somebody has to press, type into or choose from. Of the toolbar's pictures one has the
/// focus, arrow keys lead to the others.
bool IsInput(const QWidget* control) {
    const auto* box = qobject_cast<const QLineEdit*>(control);
    return !control->objectName().startsWith(QStringLiteral("Image1(")) &&
           ((box != nullptr && !box->isReadOnly()) ||
            qobject_cast<const QAbstractButton*>(control) != nullptr ||
            qobject_cast<const QComboBox*>(control) != nullptr ||
            qobject_cast<const QAbstractItemView*>(control) != nullptr);
}

void ExpectTabToReachEveryControl(QWidget& window) {
    const std::set<QWidget*> reached = ReachedByTab(window);
    const auto controls = window.findChildren<QWidget*>();
    for (QWidget* control : controls) {
        if (!IsOurs(control) || !control->isVisible()) continue;
        EXPECT_FALSE(IsInput(control) && control->focusPolicy() == Qt::NoFocus)
            << control->objectName().toStdString() << " never gets the focus";
        if (!TabsTo(control) || IsAnOptionBeside(control)) continue;
        const bool inside = std::ranges::any_of(
            reached, [control](const QWidget* each) { return control->isAncestorOf(each); });
        EXPECT_TRUE(inside || reached.contains(control)) << control->objectName().toStdString();
    }
}

QImage Look(QWidget& window, const QWidget* control) {
    constexpr int around = 4;
    const QRect place(control->mapTo(&window, QPoint()), control->size());
    return window.grab(place.adjusted(-around, -around, around, around)).toImage();
}

// Where nothing has the focus a default button looks as if it had, so it goes to another control.
void ExpectToSeeTheFocus(QWidget& window) {
    window.setAttribute(Qt::WA_KeyboardFocusChange);  // As after any key that moves the focus.
    const std::set<QWidget*> reached = ReachedByTab(window);
    for (QWidget* control : reached) {
        const auto other = std::ranges::find_if(reached, [control](const QWidget* each) {
            return each != control && qobject_cast<const QAbstractButton*>(each) != nullptr;
        });
        if (other == reached.end()) continue;
        control->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        const QImage with = Look(window, control);
        (*other)->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        EXPECT_NE(with, Look(window, control)) << control->objectName().toStdString();
    }
}

/// The key that a command has in every form, by its caption; none for other buttons.
QKeySequence KeyOfCaption(QString caption) {
    caption = caption.remove(QLatin1Char('&')).trimmed();
    if (caption == QLatin1String("Generate") || caption == QLatin1String("Check"))
        return Qt::Key_F5;
    if (caption == QLatin1String("Save")) return Qt::CTRL | Qt::Key_S;
    if (caption == QLatin1String("Print")) return Qt::CTRL | Qt::Key_P;
    return {};
}

class AccessibleForm : public EveryFormTest {
  protected:
    static void SetUpTestSuite() { QApplication::setStyle(new OutlinedStyle); }
    static void TearDownTestSuite() { QApplication::setStyle(QStringLiteral("Fusion")); }
};

TEST_P(AccessibleForm, GivesEveryElementARoleAndWhatTakesTheFocusAName) {
    Open();
    ExpectRolesAndNames(*form);
}

TEST_P(AccessibleForm, TellsTheStatesOfItsControls) {
    Open();
    for (QWidget* control : Controls()) {
        if (!control->isVisible()) continue;
        QAccessibleInterface* element = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(element, nullptr) << control->objectName().toStdString();
        const QAccessible::State state = element->state();
        const std::string name = control->objectName().toStdString();
        EXPECT_EQ(state.disabled, control->isEnabled() ? 0U : 1U) << name;
        if (const auto* button = qobject_cast<QAbstractButton*>(control)) {
            EXPECT_EQ(state.checked, button->isCheckable() && button->isChecked() ? 1U : 0U)
                << name;
        }
        if (const auto* box = qobject_cast<QLineEdit*>(control)) {
            EXPECT_EQ(state.readOnly, box->isReadOnly() ? 1U : 0U) << name;
        }
    }
}

TEST_P(AccessibleForm, LetsTheTabKeyReachEveryControl) {
    Open();
    ExpectTabToReachEveryControl(*form);
}

TEST_P(AccessibleForm, ShowsWhichControlHasTheFocus) {
    Open();
    ExpectToSeeTheFocus(*form);
}

// Where several have the caption one of them has the key.
TEST_P(AccessibleForm, GivesItsMainCommandsTheKeysThatTheyHaveEverywhere) {
    Open();
    std::map<QKeySequence, bool> given;
    const auto buttons = form->findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        const QKeySequence key = KeyOfCaption(button->text());
        if (key.isEmpty() || !button->isVisible()) continue;
        const auto shortcuts = button->findChildren<QShortcut*>();
        const bool has = std::ranges::any_of(
            shortcuts, [&key](const QShortcut* each) { return each->key() == key; });
        given[key] = given[key] || has;
    }
    for (const auto& [key, has] : given) EXPECT_TRUE(has) << key.toString().toStdString();
}

// Twice the size that most desktops come with.
TEST_P(AccessibleForm, FitsTheScreenInLettersOfTwiceTheSize) {
    const Letters letters(20);
    Open();
    const QSize room = RoomOnScreen(*form);
    EXPECT_LE(form->width(), room.width());
    EXPECT_LE(form->height(), room.height());
}

INSTANTIATE_TEST_SUITE_P(Catalogue, AccessibleForm, testing::ValuesIn(ExistingForms()),
                         FormTestName);

class AccessibleMainWindow : public MainWindow {
  protected:
    void SetUp() override {
        QApplication::setStyle(new OutlinedStyle);
        AddUkLotto(program.folder);
    }
    void TearDown() override {
        window.reset();
        QApplication::setStyle(QStringLiteral("Fusion"));
    }
};

TEST_F(AccessibleMainWindow, IsForEarAndKeyboardTooWithTheWelcome) {
    Start();
    ExpectRolesAndNames(*window);
    ExpectTabToReachEveryControl(*window);
    ExpectToSeeTheFocus(*window);
}

TEST_F(AccessibleMainWindow, IsForEarAndKeyboardTooWithTheInfoPanels) {
    Start();
    Choose("FileNotes");
    ExpectRolesAndNames(*window);
    ExpectTabToReachEveryControl(*window);
    ExpectToSeeTheFocus(*window);
}

}  // namespace
