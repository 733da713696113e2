// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/ElidingLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "platform/widgets/Readable.h"

ElidingLabel::ElidingLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QStringList ElidingLabel::Lines() const {
    return text().remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
}

QStringList ElidingLabel::FittingLines() const {
    QStringList lines = Lines();
    for (QString& line : lines) {
        line = fontMetrics().elidedText(Readable(line), Qt::ElideRight, contentsRect().width());
    }
    return lines;
}

QSize ElidingLabel::minimumSizeHint() const {
    const auto height = static_cast<int>(Lines().size()) * fontMetrics().lineSpacing();
    const QMargins margins = contentsMargins();
    return {margins.left() + margins.right(), height + margins.top() + margins.bottom()};
}

bool ElidingLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const bool cut = FittingLines() != Lines();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           cut ? PlainTip(text()) : QString(), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidingLabel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), FittingLines().join(QLatin1Char('\n')), foregroundRole());
}
