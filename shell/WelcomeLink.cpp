// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/WelcomeLink.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

#include "platform/widgets/Widgets.h"

namespace {

constexpr int margin = 7;
constexpr int gap = 12;

}  // namespace

WelcomeLink::WelcomeLink(const QString& picture, QWidget* parent) : QAbstractButton(parent) {
    setIcon(QIcon(picture));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void WelcomeLink::SetWords(const QString& caption, const QString& description) {
    caption_ = caption;
    description_ = description;
    setText(ShownCaption(caption));
    setAccessibleName(caption);
    setAccessibleDescription(description);
    updateGeometry();
    update();
}

QFont WelcomeLink::CaptionFont() const {
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

int WelcomeLink::PictureEdge() const { return 2 * fontMetrics().height(); }

QSize WelcomeLink::SizeFor(int wordsWidth) const {
    const int height = QFontMetrics(CaptionFont()).height() + fontMetrics().height();
    return {margin + PictureEdge() + gap + wordsWidth + margin,
            margin + qMax(height, PictureEdge()) + margin};
}

QSize WelcomeLink::sizeHint() const {
    return SizeFor(qMax(QFontMetrics(CaptionFont()).horizontalAdvance(caption_),
                        fontMetrics().horizontalAdvance(description_)));
}

QSize WelcomeLink::minimumSizeHint() const {
    return SizeFor(24 * fontMetrics().averageCharWidth());
}

void WelcomeLink::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange) updateGeometry();
}

void WelcomeLink::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void WelcomeLink::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor highlight = palette().color(QPalette::Highlight);
    if (underMouse() || hasFocus() || isDown()) {
        QColor fill = highlight;
        fill.setAlpha(isDown() ? 90 : 36);
        painter.setPen(hasFocus() ? QPen(highlight, 2) : QPen(Qt::NoPen));
        painter.setBrush(underMouse() || isDown() ? QBrush(fill) : QBrush(Qt::NoBrush));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
    }
    const QRect inside = rect().adjusted(margin, margin, -margin, -margin);
    const int edge = PictureEdge();
    icon().paint(&painter, QRect(inside.left(), inside.center().y() - edge / 2, edge, edge));
    const QRect words = inside.adjusted(edge + gap, 0, 0, 0);
    const QFontMetrics caption(CaptionFont());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(CaptionFont());
    painter.drawText(words, Qt::AlignLeft | Qt::AlignTop,
                     caption.elidedText(caption_, Qt::ElideRight, words.width()));
    painter.setFont(font());
    painter.drawText(words, Qt::AlignLeft | Qt::AlignBottom,
                     fontMetrics().elidedText(description_, Qt::ElideRight, words.width()));
}
