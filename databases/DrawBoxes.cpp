// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DrawBoxes.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/system/TextConversion.h"
#include "platform/widgets/NumberBox.h"

namespace {

constexpr int boxWidth = 52;

QString tr(const char* text) { return QCoreApplication::translate("DrawBoxes", text); }

}  // namespace

DrawBoxes MakeDrawBoxes(int firstIndex) {
    const DrawBoxes boxes = MakeEntryBoxes(firstIndex, tr("Bonus or extra ball"));
    for (NumberBox* box : boxes) box->setFixedWidth(boxWidth);
    return boxes;
}

QLayout* BuildDrawBoxes(QLabel* mainTitle, QLabel* lastTitle, const DrawBoxes& boxes) {
    auto* mainBoxes = new QHBoxLayout;
    mainBoxes->setSpacing(4);
    for (std::size_t i = 0; i < 7; ++i) mainBoxes->addWidget(boxes[i]);
    mainBoxes->addStretch(1);
    auto* mainNumbers = new QVBoxLayout;
    mainNumbers->setSpacing(4);
    mainNumbers->addWidget(mainTitle);
    mainNumbers->addLayout(mainBoxes);
    auto* lastNumber = new QVBoxLayout;
    lastNumber->setSpacing(4);
    lastNumber->addWidget(lastTitle);
    lastNumber->addWidget(boxes[7]);
    auto* numbers = new QHBoxLayout;
    numbers->addLayout(mainNumbers);
    numbers->addSpacing(8);
    numbers->addLayout(lastNumber);
    numbers->addStretch(1);
    return numbers;
}

NumberBox* FirstOutside(const DrawBoxes& boxes, int count, int most) {
    const auto* const end = boxes.begin() + count;
    const auto* const wrong = std::find_if(boxes.begin(), end, [most](const NumberBox* box) {
        return box->Value() < 1 || box->Value() > most;
    });
    return wrong == end ? nullptr : *wrong;
}

void LeadTo(NumberBox& box) {
    box.setFocus();
    box.selectAll();
}

std::array<std::string, 8> TextsOf(const DrawBoxes& boxes) {
    std::array<std::string, 8> texts;
    std::transform(boxes.begin(), boxes.end(), texts.begin(),
                   [](const NumberBox* box) { return FromQString(box->text()); });
    return texts;
}
