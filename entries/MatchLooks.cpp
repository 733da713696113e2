// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/MatchLooks.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPainter>

#include "platform/forms/Skin.h"
#include "platform/widgets/GridLooks.h"
#include "platform/widgets/Widgets.h"

namespace {

class MatchSample final : public QLabel {
  public:
    explicit MatchSample(Match match) : QLabel(QStringLiteral("7")), match_(match) {
        const QColor colour = MatchColour(match);
        QPalette palette(Qt::black, colour);
        palette.setColor(QPalette::Window, colour);
        palette.setColor(QPalette::WindowText, Qt::black);
        setPalette(palette);
        setAutoFillBackground(true);
        setAlignment(Qt::AlignCenter);
        setContentsMargins(16, 3, 16, 3);
        QFont bold = font();
        bold.setBold(true);
        setFont(bold);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        if (match_ != Match::Extra) return;
        QPainter painter(this);
        PaintMatchRing(painter, rect(), text(), Qt::black);
    }

  private:
    Match match_;
};

}  // namespace

// The values are those of the settings, blue in front.
QColor MatchColour(Match match) {
    switch (match) {
        case Match::Main:
            return ToQColor(0x00ffff);
        case Match::Extra:
            return ToQColor(0xc0c0ff);
        default:
            return ToQColor(0xffffff);
    }
}

QLabel* MakeMatchSample(const QString& name, Match match) {
    QLabel* sample = Named(new MatchSample(match), name);
    const char* const looks =
        match == Match::Extra ? "light red, bold, with a ring" : "yellow, bold";
    sample->setToolTip(QCoreApplication::translate("MatchLooks", looks));
    sample->setAccessibleName(sample->toolTip());
    return sample;
}
