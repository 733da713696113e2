// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ScrollingBody.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/forms/RoomOnScreen.h"
#include "platform/widgets/Widgets.h"
#include "tests/support/form_test.h"

namespace {

constexpr int few = 3;
constexpr int tooMany = 60;

/// A form with so many boxes below each other, and a row of buttons.
class FormOfBoxes final : public Form {
  public:
    FormOfBoxes(Program& program, int count)
        : Form(program, QStringLiteral("FormOfBoxes"), QStringLiteral("Boxes"), nullptr),
          save(MakeButton(QStringLiteral("Command1"), QStringLiteral("Save"))) {
        QVBoxLayout* layout = MakeFormLayout(this);
        for (int box = 0; box < count; ++box) {
            boxes.push_back(Named(new QLineEdit, Member(QStringLiteral("Text1"), box)));
            boxes.back()->setMinimumWidth(300);
            layout->addWidget(boxes.back());
        }
        auto* close = MakeButton(QStringLiteral("Command2"), QStringLiteral("Close"));
        layout->addLayout(BuildActionRow({save}, {close}));
        SetCloseButton(close);
    }

    void Load() override { TabInReadingOrder(); }
    using Form::TabInReadingOrder;

    std::vector<QLineEdit*> boxes;
    QPushButton* save;
};

struct AFormThatMayScroll : testing::Test {
    void Open(int count) {
        form = std::make_unique<FormOfBoxes>(program.program, count);
        form->Load();
        form->show();
        QApplication::processEvents();
    }

    ScrollingBody* Body() const { return form->findChild<ScrollingBody*>(); }

    static bool InSight(const QWidget& widget) {
        return widget.visibleRegion().boundingRect() == widget.rect();
    }

    TestProgram program;
    std::unique_ptr<FormOfBoxes> form;
};

TEST_F(AFormThatMayScroll, DoesNotWhereItFitsItsScreen) {
    Open(few);
    EXPECT_EQ(Body(), nullptr);
}

TEST_F(AFormThatMayScroll, DoesWhereItIsTooHighAndKeepsItsButtonsInSight) {
    Open(tooMany);
    ASSERT_NE(Body(), nullptr);
    EXPECT_EQ(form->height(), RoomOnScreen(*form).height());
    EXPECT_TRUE(InSight(*form->save));
    EXPECT_TRUE(InSight(*form->boxes.front()));
    EXPECT_FALSE(InSight(*form->boxes.back()));
    Body()->verticalScrollBar()->setValue(Body()->verticalScrollBar()->maximum());
    EXPECT_TRUE(InSight(*form->save));
    EXPECT_TRUE(InSight(*form->boxes.back()));
    EXPECT_EQ(Body()->horizontalScrollBar()->maximum(), 0) << "the bar has a place of its own";
}

TEST_F(AFormThatMayScroll, ScrollsAsAWholeWithoutARowOfButtons) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* label = new QLabel;
    label->setMinimumHeight(2000);
    layout->addWidget(label);
    LetScroll(window, nullptr);
    window.resize(300, 300);
    window.show();
    QApplication::processEvents();
    EXPECT_GT(window.findChild<ScrollingBody*>()->verticalScrollBar()->maximum(), 0);
}

TEST_F(AFormThatMayScroll, GivesTheFocusAtTheStartToItsFirstControlAndShowsItsBeginning) {
    Open(tooMany);
    EXPECT_EQ(form->focusWidget(), form->boxes.front());
    EXPECT_EQ(Body()->verticalScrollBar()->value(), 0);
}

TEST_F(AFormThatMayScroll, KeepsTheFocusThatItWasGivenBeforeItIsShown) {
    form = std::make_unique<FormOfBoxes>(program.program, tooMany);
    form->Load();
    form->boxes[40]->setFocus();
    form->show();
    QApplication::processEvents();
    EXPECT_EQ(form->focusWidget(), form->boxes[40]);
    EXPECT_TRUE(InSight(*form->boxes[40]));
}

TEST_F(AFormThatMayScroll, LeadsTheTabKeyThroughAllThatScrollsAndOnToTheButtons) {
    Open(tooMany);
    for (QLineEdit* box : form->boxes) {
        EXPECT_EQ(form->focusWidget(), box);
        EXPECT_TRUE(InSight(*box)) << box->objectName().toStdString();
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(form->focusWidget(), form->save);
    form->TabInReadingOrder();
    EXPECT_EQ(form->save->previousInFocusChain(), form->boxes.back());
}

TEST_F(AFormThatMayScroll, ShowsAllOfEachControlOnTheWayBackToo) {
    Open(tooMany);
    form->boxes.back()->setFocus();
    for (auto box = form->boxes.rbegin(); box != form->boxes.rend(); ++box) {
        EXPECT_EQ(form->focusWidget(), *box);
        EXPECT_TRUE(InSight(**box)) << (*box)->objectName().toStdString();
        QTest::keyClick(form->focusWidget(), Qt::Key_Backtab);
    }
}

TEST_F(AFormThatMayScroll, ShowsAllOfAControlThatGetsTheFocusByCode) {
    Open(tooMany);
    for (const std::size_t box : {50U, 10U, 59U, 0U}) {
        form->boxes[box]->setFocus();
        EXPECT_TRUE(InSight(*form->boxes[box])) << box;
    }
}

TEST_F(AFormThatMayScroll, DoesWhereItsTextNeedsMoreLinesThanTheScreenHasRoomFor) {
    form = std::make_unique<FormOfBoxes>(program.program, few);
    auto* text = new QLabel(QStringLiteral("one two three four five ").repeated(600));
    text->setWordWrap(true);
    qobject_cast<QVBoxLayout*>(form->layout())->insertWidget(0, text);
    form->show();
    QApplication::processEvents();
    ASSERT_NE(Body(), nullptr);
    EXPECT_GE(text->height(), text->heightForWidth(text->width()));
    EXPECT_TRUE(InSight(*form->save));
}

TEST_F(AFormThatMayScroll, LeavesInPlaceWhatIsClicked) {
    Open(tooMany);
    QScrollBar* bar = Body()->verticalScrollBar();
    QTest::keyClick(form.get(), Qt::Key_Tab);
    const QLineEdit* last = form->boxes.front();
    for (const QLineEdit* box : form->boxes) {
        if (!box->visibleRegion().isEmpty()) last = box;
    }
    bar->setValue(bar->value() + 5);
    const int before = bar->value();
    const QPoint place = last->mapTo(form.get(), QPoint(5, 1));
    QTest::mousePress(form->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(form->focusWidget(), last);
    EXPECT_EQ(bar->value(), before);
    QTest::mouseRelease(form->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
}

TEST_F(AFormThatMayScroll, LetsItsBackgroundShowThroughWhatScrolls) {
    form = std::make_unique<FormOfBoxes>(program.program, tooMany);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::green);
    form->setPalette(palette);
    form->show();
    EXPECT_EQ(form->grab().toImage().pixelColor(3, 3), QColor(Qt::green));
}

}  // namespace
