// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page.h"

namespace {

// What a line may reach beyond the sheet before it is said not to fit, as heights are fractions.
constexpr double tolerance = 1e-6;

template <typename Placed>
void Correct(Placed& placed, const PageCorrection& correction) {
    placed.across = placed.across * correction.scaleAcross / 100 + correction.moveAcross;
    placed.down = placed.down * correction.scaleDown / 100 + correction.moveDown;
}

}  // namespace

Document Corrected(Document document, const PageCorrection& correction) {
    if (correction == PageCorrection()) return document;
    for (Sheet& sheet : document.sheets) {
        for (PlacedText& text : sheet.texts) Correct(text, correction);
        for (FilledRectangle& rectangle : sheet.rectangles) Correct(rectangle, correction);
    }
    return document;
}

Typesetter::Typesetter(SheetRoom room) : room_(std::move(room)) {}

void Typesetter::MoveTo(double across, double down) {
    across_ = across;
    down_ = down;
}

void Typesetter::Print(std::string_view text) {
    if (text.empty()) return;
    if (document_.sheets.empty()) document_.sheets.emplace_back();
    // On a sheet lower than one line each line would ask for another sheet for ever.
    const bool fits = down_ + room_.lineHeight(look_) <= room_.height + tolerance;
    if (!fits && down_ > 0) {
        document_.sheets.emplace_back();
        down_ = 0;
    }
    document_.sheets.back().texts.push_back(
        {.across = across_, .down = down_, .text = std::string(text), .look = look_});
    across_ += room_.textWidth(text, look_);
}

void Typesetter::EndLine() {
    down_ += room_.lineHeight(look_);
    across_ = 0;
}
