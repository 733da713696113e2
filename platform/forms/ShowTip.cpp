// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ShowTip.h"

#include <QCoreApplication>
#include <QStringList>

#include "platform/system/MessageBoxes.h"

namespace {

/// The tips are worded under this context for translators.
QString tr(const char* text) { return QCoreApplication::translate("ShowTip", text); }

struct Tip {
    QString title;
    QStringList lines;  // the blanks at their ends widen the box
};

Tip MixOfOddAndEven() {
    return {tr("Did you know..."),
            {tr(" It is rare for a lottery draw to have     "),
             tr(" numbers that are all odd or all even. Most     "),
             tr(" draws have a mixture of odd and even     "),
             tr(" numbers. Setting this option ensures your     "),
             tr(" lottery entries have the right mix.     ")}};
}

Tip MixOfLowAndHigh() {
    return {tr("Did you know..."),
            {tr(" It is rare for a lottery draw to have     "),
             tr(" numbers that are all very high or all very     "),
             tr(" low. Most draws have a mixture of low and     "),
             tr(" high numbers. Setting this option ensures     "),
             tr(" your lottery entries have the right mix.     ")}};
}

Tip NeverTwice() {
    return {tr("Did you know..."),
            {tr(" Lightning never strikes the same place twice,     "),
             tr(" at least not in lotteries. The same draw     "),
             tr(" numbers have never come up twice, so you don't     "),
             tr(" want to pick a set of numbers that have come     "),
             tr(" up before. This option checks all previous     "),
             tr(" draws to make sure this doesn't happen.     ")}};
}

Tip NotForHotPicks() {
    return {tr("Feeling lucky?"),
            {tr("      "), tr(" This method of selecting numbers is     "),
             tr(" not suitable for Hot Picks. Here are     "),
             tr(" some lucky dips you can try instead.     ")}};
}

Tip NameOfPlayer() {
    return {tr("Top tip"),
            {tr(" If you enter a name here, these lottery  "),
             tr(" entries will be associated with that person  "),
             tr(" when they are saved. This is useful if  "),
             tr(" different people play different lotteries,  "),
             tr(" or people in a syndicate have specific  "),
             tr(" entries. Leave it blank if you are the only  "),
             tr(" person that uses this program.  ")}};
}

Tip BadInput() {
    return {
        tr("Error"),
        {tr(" There was a problem with the input.  "), tr(" Please check it and try again.  ")}};
}

Tip TipOf(int number) {
    switch (number) {
        case 1:
            return MixOfOddAndEven();
        case 2:
            return MixOfLowAndHigh();
        case 3:
            return NeverTwice();
        case 4:
            return NotForHotPicks();
        case 5:
            return NameOfPlayer();
        case 6:
            return BadInput();
        default:
            return {};
    }
}

}  // namespace

void ShowTip(Services& services, QWidget* parent, int tip) {
    const Tip words = TipOf(tip);
    if (words.lines.isEmpty()) return;
    QString text;
    for (const QString& line : words.lines) text += line + QStringLiteral("\r\n");
    services.messages.Show(
        parent,
        {.title = words.title, .text = text, .sign = Sign::Information, .buttons = Buttons::Ok});
}
