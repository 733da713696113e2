// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <string>
#include <vector>

#include "platform/Lists.h"
#include "tests/support/lines_form.h"
#include "tests/support/sample_lotteries.h"

inline const QColor white(255, 255, 255);
inline const QColor grey(192, 192, 192);

/// A wheel form with number boxes, over lotteries that differ in their picks.
class WheelFormTest : public LinesFormTest {
  protected:
    /// Places in the list of lotteries.
    enum { Lotto, Five, Four, Seven, FivePlain, Six40 };

    WheelFormTest() {
        AddLottery(test_.folder, "dbase1.txt", "Lotto", "6,49,0,0,1",
                   {"28 May 05,3,17,22,34,41,48,0,9"});
        AddLottery(test_.folder, "dbase2.txt", "Five", "5,34,1,14,0");
        AddLottery(test_.folder, "dbase3.txt", "Four", "4,35,0,0,0");
        AddLottery(test_.folder, "dbase4.txt", "Seven", "7,47,1,9,0");
        AddLottery(test_.folder, "dbase5.txt", "Five plain", "5,34,0,0,0");
        AddLottery(test_.folder, "dbase6.txt", "Six of 40", "6,40,0,0,0");
        for (int slot = 11; slot <= 14; ++slot) test_.state.Settings(slot) = "2";
    }

    static std::string BoxName(int index) { return "Text1(" + std::to_string(index) + ")"; }

    QLineEdit& Box(int index) { return *Find<QLineEdit>(*form_, BoxName(index).c_str()); }

    QColor Background(int index) { return Box(index).palette().color(QPalette::Base); }

    QString Text(const char* label) { return Find<QLabel>(*form_, label)->text(); }

    void ChooseSize(int option) {
        Click(*form_, ("Option1(" + std::to_string(option) + ")").c_str());
    }

    void TypeBox(int index, const QString& text) { Type(*form_, BoxName(index).c_str(), text); }

    /// Types 1 to `count` into the first boxes.
    void TypeCounting(int count) {
        for (int index = 0; index < count; ++index) TypeBox(index, QString::number(index + 1));
    }

    QStringList BoxTexts(int count) {
        QStringList texts;
        for (int index = 0; index < count; ++index) texts << Box(index).text();
        return texts;
    }

    void ExpectInputTip() {
        test_.messages.Expect({.title = QStringLiteral("Error"),
                               .text = QStringLiteral(" There was a problem with the input.  \r\n "
                                                      "Please check it and try again.  \r\n"),
                               .sign = Sign::Information});
    }
};
