// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/PastedNumbers.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

#include "platform/widgets/NumberBox.h"
#include "tests/support/form_test.h"

namespace {

QStringList Words(const char* words) {
    return QString::fromLatin1(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST(NumbersInAText, ArePartedByBlanksCommasTabsDashesAndLineEnds) {
    for (const char* text : {"7 14 21", "7,14,21", "7, 14, 21", "7\t14\t21", "7-14-21",
                             "7 - 14 - 21", "7;14;21", " 7\r\n14\r\n21\r\n"}) {
        EXPECT_EQ(NumbersIn(QString::fromLatin1(text)), Words("7 14 21")) << text;
    }
    EXPECT_EQ(NumbersIn(QStringLiteral(u"7\u201314\u00a021")), Words("7 14 21"));
}

TEST(NumbersInAText, AreMadeOfTheDigitsBetween) {
    EXPECT_EQ(NumbersIn(QStringLiteral("a1b2")), Words("12"));
    EXPECT_EQ(NumbersIn(QStringLiteral("#07 and 14. bonus 21")), Words("07 14 21"));
    EXPECT_EQ(NumbersIn(QStringLiteral(" , - ")), QStringList());
    EXPECT_EQ(NumbersIn(QString()), QStringList());
}

/// Five boxes in a row, of which the third is hidden and the fourth disabled.
class ARowOfBoxes : public testing::Test {
  protected:
    ARowOfBoxes() {
        auto* layout = new QHBoxLayout(&form_);
        for (NumberBox*& box : boxes_) {
            box = new NumberBox;
            layout->addWidget(box);
        }
        boxes_[2]->hide();
        boxes_[3]->setEnabled(false);
        DealPastedNumbers({boxes_.begin(), boxes_.end()});
        form_.show();
        QApplication::setActiveWindow(&form_);
    }

    static void Copy(const char* text) {
        QGuiApplication::clipboard()->setText(QString::fromLatin1(text));
    }

    void PasteInto(int box) {
        boxes_.at(static_cast<std::size_t>(box))->setFocus();
        QTest::keySequence(boxes_.at(static_cast<std::size_t>(box)), QKeySequence::Paste);
    }

    std::string Texts() const {
        QStringList texts;
        for (const NumberBox* box : boxes_) texts += box->text();
        return texts.join(QLatin1Char('|')).toStdString();
    }

    QWidget form_;
    std::array<NumberBox*, 5> boxes_;
};

TEST_F(ARowOfBoxes, DealsSeveralNumbersToTheBoxesThatCanTakeThem) {
    boxes_[2]->setText(QStringLiteral("1"));
    Copy("7, 14, 21");
    PasteInto(0);
    EXPECT_EQ(Texts(), "7|14|1||21");
    EXPECT_TRUE(boxes_[4]->hasFocus());
}

TEST_F(ARowOfBoxes, StartsAtTheBoxThatIsPastedInto) {
    boxes_[0]->setText(QStringLiteral("1"));
    Copy("7 14");
    PasteInto(1);
    EXPECT_EQ(Texts(), "1|7|||14");
}

TEST_F(ARowOfBoxes, ReplacesWhatStandsInTheBoxes) {
    boxes_[0]->setText(QStringLiteral("5"));
    boxes_[1]->setText(QStringLiteral("6"));
    Copy("7 14");
    PasteInto(0);
    EXPECT_EQ(Texts(), "7|14|||");
}

TEST_F(ARowOfBoxes, LeavesOutNumbersWithoutABox) {
    Copy("7 14 21 28");
    PasteInto(1);
    EXPECT_EQ(Texts(), "|7|||14");
}

TEST_F(ARowOfBoxes, TakesOneNumberAsItEverDid) {
    boxes_[0]->setText(QStringLiteral("1"));
    Copy(" 2a3\n");
    PasteInto(0);
    EXPECT_EQ(Texts(), "123||||");
}

TEST_F(ARowOfBoxes, DealsBeforeABoxCutsTheTextToItsLength) {
    for (NumberBox* box : boxes_) box->setMaxLength(3);
    Copy("7 14 21");
    PasteInto(0);
    EXPECT_EQ(Texts(), "7|14|||21");
}

TEST_F(ARowOfBoxes, TellsOfEachNumberAsOfATypedOne) {
    int edits = 0;
    for (NumberBox* box : boxes_) {
        QObject::connect(box, &QLineEdit::textEdited, box, [&] { ++edits; });
    }
    Copy("7 14 21");
    PasteInto(0);
    EXPECT_EQ(edits, 3);
}

TEST_F(ARowOfBoxes, DealsWhatIsDropped) {
    QMimeData data;
    data.setText(QStringLiteral("7 14"));
    QDragEnterEvent enter(QPoint(2, 2), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(boxes_[0], &enter);
    QDropEvent drop(QPointF(2, 2), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                    Qt::NoModifier);
    QApplication::sendEvent(boxes_[0], &drop);
    EXPECT_EQ(Texts(), "7|14|||");
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
}

class TheMenuOfABox : public ARowOfBoxes {
  protected:
    void PasteFromMenu() {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2),
                                boxes_[0]->mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(boxes_[0], &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions()) {
            if (action->text().contains(QStringLiteral("Paste"))) action->trigger();
        }
        menu->close();
    }
};

TEST_F(TheMenuOfABox, DealsSeveralNumbers) {
    Copy("7 14");
    PasteFromMenu();
    EXPECT_EQ(Texts(), "7|14|||");
}

TEST_F(TheMenuOfABox, PastesOneNumber) {
    Copy("7");
    PasteFromMenu();
    EXPECT_EQ(Texts(), "7||||");
}

}  // namespace
