// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screenshots/usage.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>
#include <map>
#include <random>
#include <set>

#include "core/date.h"
#include "platform/widgets/Lists.h"

namespace {

template <typename Control>
Control* Find(const QWidget& form, const char* name) {
    return form.findChild<Control*>(QString::fromLatin1(name));
}

void Click(const QWidget& form, const char* button) {
    Find<QAbstractButton>(form, button)->click();
}

void Type(const QWidget& form, const char* box, const char* text) {
    Find<QLineEdit>(form, box)->setText(QString::fromLatin1(text));
}

/// Numbers typed and added to the grid.
void TypeEntry(Form& form, const char* numbers) {
    const QStringList words = QString::fromLatin1(numbers).split(QLatin1Char(' '));
    for (qsizetype place = 0; place < words.size(); ++place) {
        const QByteArray box = QStringLiteral("Text1(%1)").arg(place + 1).toLatin1();
        Find<QLineEdit>(form, box.constData())->setText(words[place]);
    }
    Click(form, "Command2");
}

// Play and wheel forms.

void GenerateTwelveLines(Form& form) {
    Click(form, "Check1");
    Click(form, "Check3");
    Find<QScrollBar>(form, "HScroll1")->setValue(12);
    Click(form, "Command2");
}

void Generate(Form& form) { Click(form, "Command2"); }

void WheelRandomNumbers(Form& form) {
    Click(form, "Command12");
    Click(form, "Command2");
}

void WheelInThirdSize(Form& form) {
    Click(form, "Option1(2)");
    WheelRandomNumbers(form);
}

void WheelFourteenNumbers(Form& form) {
    Find<QComboBox>(form, "Combo1")->setCurrentIndex(6);
    WheelRandomNumbers(form);
}

void NamePlayer(Form& form) {
    Type(form, "Text1", "Anna Miller");
    Generate(form);
}

void MarkRandomNumbers(Form& form) { Click(form, "Command12(0)"); }

// Databases.

void ChooseTemplate(Form& form) {
    auto* templates = Find<QListWidget>(form, "List1");
    const auto found = templates->findItems(QStringLiteral("UK Thunderball"), Qt::MatchExactly);
    if (!found.isEmpty()) templates->setCurrentItem(found.first());
}

void TypeDraw(Form& form) {
    const QStringList numbers = QStringLiteral("4 12 23 31 40 49").split(QLatin1Char(' '));
    for (qsizetype place = 0; place < numbers.size(); ++place) {
        const QByteArray box = QStringLiteral("Text1(%1)").arg(place).toLatin1();
        Find<QLineEdit>(form, box.constData())->setText(numbers[place]);
    }
}

// Entries and analyses.

void SaveTwelveLines(Form& form) { Type(form, "Text1", "12"); }

void StoreTwoEntries(Form& form) {
    Type(form, "TextPName", "Anna");
    TypeEntry(form, "3 11 19 27 34 48");
    TypeEntry(form, "8 15 22 29 36 43");
}

void SortByLastDraw(Form& form) { Click(form, "Command1"); }

void CheckFourEntries(Form& form) {
    Find<QListWidget>(form, "List1")->setCurrentRow(0);
    TypeEntry(form, "3 11 19 27 34 48");
    TypeEntry(form, "8 15 22 29 36 43");
    TypeEntry(form, "7 14 17 21 30 38");
    TypeEntry(form, "1 2 3 4 5 6");
    Click(form, "Command4");
    Click(form, "Command3");
}

void CheckSavedEntries(Form& form) { Click(form, "Command2"); }

// Syndicates and printing.

void SelectFirstMember(Form& form) { Find<ListBox>(form, "List1")->SetIndex(0); }

void NameSyndicate(Form& form) {
    Type(form, "Text1(7)", "Office pool");
    Type(form, "Text1(0)", "Anna");
}

void BackUpAll(Form& form) { Click(form, "Command4"); }

void PrintTwelveLines(Form& form) { Type(form, "Text2", "12"); }

// Further views.

void TurnToReadingPage(Form& form) { Find<QTabWidget>(form, "Pages")->setCurrentIndex(1); }

// Databases.

/// A year of draws of 6 from 1 to 59 with a bonus ball, as an operator's file has them.
std::string YearOfResults() {
    std::mt19937 random(59);
    std::string text = "DrawDate,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Ball 6,Bonus Ball,Machine\n";
    Date date = std::chrono::year(2025) / std::chrono::January / 1;
    for (int draw = 0; draw < 104; ++draw) {
        text += MediumDate(date);
        std::set<unsigned> drawn;
        while (drawn.size() < 7) {
            const unsigned ball = static_cast<unsigned>(random() % 59U) + 1;
            if (drawn.insert(ball).second) text += "," + std::to_string(ball);
        }
        text += draw % 3 == 0 ? ",Merlin\n" : ",Arthur\n";
        date = DaysAfter(date, draw % 2 == 0 ? -4 : -3);
    }
    return text;
}

void PasteAYearOfResults(Form& form) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(YearOfResults()));
    Click(form, "PasteTable");
    Type(form, "NewName", "Saturday lotto");
}

using Usage = void (*)(Form&);

const std::map<std::string, Usage>& Usages() {
    static const std::map<std::string, Usage> usages = {
        {"CreateDbase", ChooseTemplate},
        {"DbaseUpdateW", TypeDraw},
        {"PLuckyNumbers", NamePlayer},
        {"PStarSign", Generate},
        {"ANumberStats", SortByLastDraw},
        {"Backup", BackUpAll},
        {"ImportDraws", PasteAYearOfResults},
        {"NewSyndicate", NameSyndicate},
        {"PBudgetWheel", WheelInThirdSize},
        {"PDIYWheels", WheelFourteenNumbers},
        {"PGuaranteed", MarkRandomNumbers},
        {"PLuckyDip", GenerateTwelveLines},
        {"PThreeMatch", WheelRandomNumbers},
        {"PWheel2", WheelInThirdSize},
        {"PWheel3", WheelInThirdSize},
        {"PrintFrm", PrintTwelveLines},
        {"PrintTickets", PrintTwelveLines},
        {"SMembers", SelectFirstMember},
        {"SaveEntries", SaveTwelveLines},
        {"ShowMyDrawsW", CheckSavedEntries},
        {"StoreMyDrawsW", StoreTwoEntries},
        {"WhatIf", CheckFourEntries},
        {"Wheel49", Generate},
    };
    return usages;
}

}  // namespace

void Use(Form& form, bool hasSamples) {
    const std::string name = form.objectName().toStdString();
    const auto found = Usages().find(name);
    if (found == Usages().end()) return;
    const bool needsSamples = name == "ShowMyDrawsW";
    if (hasSamples || !needsSamples) found->second(form);
}

std::vector<FurtherView> FurtherViews(const Form& form) {
    if (form.objectName() != QLatin1String("ImportDraws")) return {};
    return {{.name = "reading", .turnTo = TurnToReadingPage}};
}
