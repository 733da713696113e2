// SPDX-License-Identifier: GPL-3.0-or-later
// What a form says of its actions beside its buttons.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/forms/Form.h"
#include "platform/forms/FormLayout.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "tests/core/failures.h"
#include "tests/support/form_test.h"

namespace {

const QString saved = QStringLiteral("10 lines saved for Wed 11 Jun 2025, Anna");

/// A form with one button that says something and one that does not.
class SayingForm final : public Form {
  public:
    explicit SayingForm(Program& program)
        : Form(program, QStringLiteral("SayingForm"), QStringLiteral("Saying"), nullptr) {
        auto* save = MakeButton(QStringLiteral("Command7"), QStringLiteral("Save"));
        auto* filter = MakeButton(QStringLiteral("Command9"), QStringLiteral("Filter"));
        auto* list = Named(new ListBox, QStringLiteral("List1"));
        list->addItems({QStringLiteral("one"), QStringLiteral("two")});
        QVBoxLayout* layout = MakeFormLayout(this);
        layout->addWidget(MakeLabel(QStringLiteral("Label1"), QStringLiteral("Lottery:")));
        layout->addWidget(list);
        layout->addWidget(Named(new QLineEdit, QStringLiteral("Text1")));
        layout->addLayout(BuildActionRow({save, filter}, {}));
        connect(save, &QPushButton::clicked, this, [this] { Say(saved); });
        connect(list, &ListBox::clicked, this,
                [this, list] { Say(list->item(list->Index())->text()); });
    }
};

struct ASayingForm : testing::Test {
    ASayingForm() {
        form.resize(700, 300);
        form.show();
        QApplication::processEvents();
    }

    QString Said() { return Find<QLabel>(form, "Said")->text(); }

    TestProgram test;
    SayingForm form{test.program};
};

TEST_F(ASayingForm, SaysNothingAtFirst) { EXPECT_EQ(Said(), QString()); }

TEST_F(ASayingForm, SaysWhatAnActionDidBesideItsButtons) {
    Click(form, "Command7");
    EXPECT_EQ(Said(), saved);
    const auto* line = Find<QWidget>(form, "Said");
    EXPECT_TRUE(line->isVisible());
    EXPECT_GT(line->x(), Find<QWidget>(form, "Command9")->geometry().right());
}

TEST_F(ASayingForm, KeepsItUntilTheNextAction) {
    Click(form, "Command7");
    QTest::keyClick(Find<QWidget>(form, "Command7"), Qt::Key_Tab);
    Click(form, "Label1");
    EXPECT_EQ(Said(), saved);
    Click(form, "Command9");
    EXPECT_EQ(Said(), QString());
}

TEST_F(ASayingForm, TakesAKeyForAnAction) {
    Click(form, "Command7");
    QTest::keyClick(Find<QWidget>(form, "Text1"), Qt::Key_1);
    EXPECT_EQ(Said(), QString());
}

TEST_F(ASayingForm, KeepsWhatEnterInABoxDid) {
    auto* box = Find<QLineEdit>(form, "Text1");
    QObject::connect(box, &QLineEdit::returnPressed, &form, [this] { form.Say(saved); });
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(Said(), saved) << "a text box passes Enter on to the form";
    QTest::keyClick(box, Qt::Key_Left);
    EXPECT_EQ(Said(), QString());
}

TEST_F(ASayingForm, SaysItAgainForTheSameAction) {
    Click(form, "Command7");
    QTest::keyClick(Find<QWidget>(form, "Command7"), Qt::Key_Space);
    EXPECT_EQ(Said(), saved);
}

TEST_F(ASayingForm, SaysWhatAPressInAListDid) {
    Click(form, "Command7");
    auto* list = Find<ListBox>(form, "List1");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(Said(), QStringLiteral("two"));
}

TEST_F(ASayingForm, IsNotSilencedByAnotherWindow) {
    Click(form, "Command7");
    QPushButton other;
    other.show();
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_EQ(Said(), saved);
}

TEST_F(ASayingForm, GrowsNoWiderByWhatItSays) {
    const QSize before = form.minimumSizeHint();
    form.Say(saved.repeated(20));
    EXPECT_EQ(form.minimumSizeHint().width(), before.width());
}

TEST_F(ASayingForm, TellsAScreenReaderWhatItSaid) {
    form.Say(saved);
    QAccessibleInterface* line = QAccessible::queryAccessibleInterface(Find<QWidget>(form, "Said"));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text(QAccessible::Name), saved);
}

TEST(AFormWithoutButtons, HasNowhereToSayAnything) {
    TestProgram test;
    Form form(test.program, QStringLiteral("Bare"), QString(), nullptr);
    EXPECT_EQ(FailureOf([&] { form.Say(saved); }),
              "The form Bare has no row of buttons to say \"" + saved.toStdString() + "\" beside");
}

}  // namespace
