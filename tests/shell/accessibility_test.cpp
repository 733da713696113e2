// SPDX-License-Identifier: GPL-3.0-or-later
// What people who work by keyboard, by ear or with large letters need of every form.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <algorithm>
#include <set>

#include "platform/forms/RoomOnScreen.h"
#include "platform/widgets/OutlinedStyle.h"
#include "shell/form_catalogue.h"
#include "tests/shell/every_form.h"
#include "tests/shell/letters.h"

namespace {

class AccessibleForm : public EveryFormTest {
  protected:
    static void SetUpTestSuite() { QApplication::setStyle(new OutlinedStyle); }
    static void TearDownTestSuite() { QApplication::setStyle(QStringLiteral("Fusion")); }

    /// Everything below an element of the accessibility tree that is to be seen.
    static void Collect(QAccessibleInterface* element, std::vector<QAccessibleInterface*>& all) {
        all.push_back(element);
        for (int i = 0; i < element->childCount(); ++i) {
            QAccessibleInterface* child = element->child(i);
            if (child != nullptr && !child->state().invisible) Collect(child, all);
        }
    }

    /// What Tab comes to, until it has come to nothing new for a while: within a date it goes from
    /// day to month to year.
    std::set<QWidget*> ReachedByTab() {
        constexpr int parts = 12;
        std::set<QWidget*> reached;
        for (int known = 0; known < parts; ++known) {
            QWidget* focused = form->focusWidget();
            QTest::keyClick(focused != nullptr ? focused : form.get(), Qt::Key_Tab);
            if (reached.insert(form->focusWidget()).second) known = 0;
        }
        return reached;
    }

    /// Of options that exclude each other only the one chosen is reached by Tab, the others by
    /// arrows.
    static bool IsAnOptionBeside(const QWidget* control) {
        const auto* option = qobject_cast<const QRadioButton*>(control);
        return option != nullptr && !option->isChecked();
    }

    QImage Look(const QWidget* control) {
        constexpr int around = 4;
        const QRect place(control->mapTo(form.get(), QPoint()), control->size());
        return form->grab(place.adjusted(-around, -around, around, around)).toImage();
    }
};

TEST_P(AccessibleForm, GivesEveryElementARoleAndWhatTakesTheFocusAName) {
    Open();
    std::vector<QAccessibleInterface*> all;
    Collect(QAccessible::queryAccessibleInterface(form.get()), all);
    EXPECT_GT(all.size(), 3U);
    for (QAccessibleInterface* element : all) {
        const QObject* object = element->object();
        const std::string name = object != nullptr ? object->objectName().toStdString() : "a part";
        EXPECT_NE(element->role(), QAccessible::NoRole) << name;
        const auto* widget = qobject_cast<const QWidget*>(object);
        if (widget == nullptr || !TakesFocus(widget) ||
            widget->objectName().startsWith(QStringLiteral("qt_"))) {
            continue;
        }
        EXPECT_FALSE(element->text(QAccessible::Name).trimmed().isEmpty()) << name;
    }
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
    const std::set<QWidget*> reached = ReachedByTab();
    for (QWidget* control : Controls()) {
        if (!TakesFocus(control) || !control->isEnabled() || IsAnOptionBeside(control)) continue;
        const bool inside = std::ranges::any_of(
            reached, [control](const QWidget* each) { return control->isAncestorOf(each); });
        EXPECT_TRUE(inside || reached.contains(control)) << control->objectName().toStdString();
    }
}

// Where nothing has the focus a default button looks as if it had, so it goes to another control.
TEST_P(AccessibleForm, ShowsWhichControlHasTheFocus) {
    Open();
    form->setAttribute(Qt::WA_KeyboardFocusChange);  // As after any key that moves the focus.
    const std::set<QWidget*> reached = ReachedByTab();
    for (QWidget* control : reached) {
        const auto other = std::ranges::find_if(reached, [control](const QWidget* each) {
            return each != control && qobject_cast<const QAbstractButton*>(each) != nullptr;
        });
        if (other == reached.end()) continue;
        control->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        const QImage with = Look(control);
        (*other)->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        EXPECT_NE(with, Look(control)) << control->objectName().toStdString();
    }
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

}  // namespace
