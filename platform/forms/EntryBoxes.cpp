// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/EntryBoxes.h"

#include <QCoreApplication>
#include <QLabel>
#include <string>

#include "core/failure.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/PastedNumbers.h"
#include "platform/widgets/Widgets.h"

EntryBoxes MakeEntryBoxes(int firstIndex, const QString& lastName) {
    EntryBoxes boxes;
    int place = 0;
    for (NumberBox*& box : boxes) {
        box = Named(new NumberBox, Member(QStringLiteral("Text1"), firstIndex + place));
        ++place;
        box->setAccessibleName(
            place == std::ssize(boxes)
                ? lastName
                : QCoreApplication::translate("EntryBoxes", "Number %1").arg(place));
        box->setAlignment(Qt::AlignCenter);
    }
    DealPastedNumbers({boxes.begin(), boxes.end()});
    return boxes;
}

void OfferEntryBoxes(const State& state, const EntryBoxes& boxes, QLabel& extraBallTitle) {
    const auto boxCount = static_cast<int>(boxes.size());
    if (state.Picks > boxCount) {
        throw Failure(state.DbaseFile + ": an entry has " + std::to_string(boxCount) +
                      " boxes for its numbers, but the lottery has " + std::to_string(state.Picks) +
                      " numbers in a line.");
    }
    const bool hasExtraBall = state.MaxPball > 0;
    int place = 0;
    for (NumberBox* box : boxes) {
        ++place;
        box->setVisible(place <= state.Picks || (hasExtraBall && place == boxCount));
    }
    extraBallTitle.setVisible(hasExtraBall);
}
