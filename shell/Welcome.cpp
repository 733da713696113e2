// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Welcome.h"

#include <QCommandLinkButton>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "platform/widgets/Widgets.h"

namespace {

struct Step {
    const char* menuEntry;
    const char* picture;
    const char* caption;
    const char* description;
};

constexpr const char* needsALottery = "PlayLuckyDip";
constexpr const char* bringsALottery = "DatabasesCreate";

constexpr std::array<Step, 4> steps = {{
    {bringsALottery, "toolbar02", QT_TRANSLATE_NOOP("Welcome", "Create a lottery"),
     QT_TRANSLATE_NOOP("Welcome", "There is none yet: tell how many numbers are drawn")},
    {needsALottery, "toolbar10", QT_TRANSLATE_NOOP("Welcome", "Generate entries"),
     QT_TRANSLATE_NOOP("Welcome", "A lucky dip under conditions of your choice")},
    {"DatabaseStoreDrawsW", "toolbar04", QT_TRANSLATE_NOOP("Welcome", "Store your own entries"),
     QT_TRANSLATE_NOOP("Welcome", "Type in the numbers that you have played")},
    {"FileNotes", "toolbar00", QT_TRANSLATE_NOOP("Welcome", "Open your desk"),
     QT_TRANSLATE_NOOP("Welcome", "Notes, checklist, biochart and your databases")},
}};

}  // namespace

Welcome::Welcome(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSpacing(4);
    layout->addWidget(MakeTitle(QStringLiteral("WelcomeTitle"), tr("Good luck!"), this));
    auto* line =
        MakeBody(QStringLiteral("WelcomeLine"),
                 tr("Every method of play is in the menu above. Three ways to begin:"), this);
    layout->addWidget(line);
    layout->addSpacing(10);
    for (const Step& step : steps) {
        auto* button = new QCommandLinkButton(tr(step.caption), tr(step.description), this);
        button->setObjectName(QStringLiteral("Welcome") + QLatin1String(step.menuEntry));
        button->setIcon(QIcon(QStringLiteral(":/icons/icons/") + QLatin1String(step.picture) +
                              QStringLiteral(".svg")));
        button->setIconSize({32, 32});
        layout->addWidget(button);
        connect(button, &QCommandLinkButton::clicked, this,
                [this, &step] { Q_EMIT stepChosen(QString::fromLatin1(step.menuEntry)); });
    }
    setFixedWidth(460);
}

void Welcome::SuitLotteries(bool any) {
    Button(needsALottery)->setVisible(any);
    Button(bringsALottery)->setVisible(!any);
}

QWidget* Welcome::Button(const char* menuEntry) const {
    return findChild<QCommandLinkButton*>(QStringLiteral("Welcome") + QLatin1String(menuEntry));
}

void Welcome::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor background = palette().color(QPalette::Window);
    background.setAlpha(232);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlpha(40);
    painter.setPen(edge);
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 10, 10);
}
