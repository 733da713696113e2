// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/SlipView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

// No slip is larger; what a slip of the key puts beyond is left out.
constexpr double largest = 1000;  // millimetres
constexpr double air = 4;

const QColor outOfReachColour(0xd0, 0x10, 0x10);

bool IsOnPaper(const FilledRectangle& mark) {
    const auto fits = [](double place, double size) {
        return std::abs(place) <= largest && std::abs(size) <= largest;
    };
    return fits(mark.across, mark.width) && fits(mark.down, mark.height);
}

bool IsOutOfReach(const FilledRectangle& mark) { return mark.across < 0 || mark.down < 0; }

QRectF AreaOf(const FilledRectangle& mark) {
    return {mark.across, mark.down, mark.width, mark.height};
}

double WithinPaper(double margin) { return std::clamp(margin, -largest, largest); }

}  // namespace

SlipView::SlipView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumHeight(60);
}

void SlipView::Show(const Document& slip, double marginX, double marginY) {
    marks_.clear();
    if (!slip.sheets.empty()) {
        std::ranges::copy_if(slip.sheets.front().rectangles, std::back_inserter(marks_), IsOnPaper);
    }
    marginX_ = WithinPaper(marginX);
    marginY_ = WithinPaper(marginY);
    setAccessibleDescription(tr("%1 marks").arg(marks_.size()));
    update();
}

int SlipView::OutOfReach() const {
    return static_cast<int>(std::ranges::count_if(marks_, IsOutOfReach));
}

// From the paper's corner to a little behind the last mark.
QRectF SlipView::Shown() const {
    QRectF shown(-marginX_, -marginY_, 1, 1);
    for (const FilledRectangle& mark : marks_) shown |= AreaOf(mark);
    return shown.adjusted(0, 0, air, air);
}

void SlipView::paintEvent(QPaintEvent*) {
    if (marks_.empty()) return;
    const QRectF shown = Shown();
    const double scale = std::min(width() / shown.width(), height() / shown.height());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(-shown.topLeft());
    const QRectF paper(QPointF(-marginX_, -marginY_), shown.bottomRight());
    painter.fillRect(paper, Qt::white);
    painter.setPen(QPen(QColor(0x80, 0x80, 0x80), 0));
    painter.drawRect(paper);
    for (const FilledRectangle& mark : marks_) {
        painter.fillRect(AreaOf(mark), IsOutOfReach(mark) ? outOfReachColour : QColor(Qt::black));
    }
}
