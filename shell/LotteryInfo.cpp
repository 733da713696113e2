// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/LotteryInfo.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int margin = 12;

/// Where the second column of a text stands: beyond all that stands before a tab.
int SecondColumn(const QString& text, const QFontMetrics& metrics) {
    constexpr int apart = 24;
    int widest = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (!line.contains(QLatin1Char('\t'))) continue;
        widest = qMax(widest, metrics.horizontalAdvance(line.section(QLatin1Char('\t'), 0, 0)));
    }
    return widest + apart;
}

}  // namespace

LotteryInfo::LotteryInfo(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("LotteryInfo"), tr("Lottery Information"), parent),
      tabs_(Named(new QTabWidget, QStringLiteral("SSTab1"))),
      close_(MakeCommandButton(QStringLiteral("Command1"), Command::Close, tr(" Close "))) {
    auto* title = MakeTitle(QStringLiteral("Label1"), tr("Lottery Information"));
    auto* explanation =
        MakeBody(QStringLiteral("Label2"),
                 tr("It is not possible to feature every lottery in the world, so here is a small "
                    "selection of popular ones..."));
    tabs_->setAccessibleName(title->text());
    connect(close_, &QPushButton::clicked, this, [this] { Unload(); });
    SetCloseButton(close_);
    auto* body = new QVBoxLayout;
    body->addWidget(tabs_, 1);
    LayOutForm(this, title, explanation, body, BuildActionRow({}, {close_}));
    SetOpeningSize({920, 600});
}

void LotteryInfo::Load() {
    Skinning(QStringLiteral("SkinHelp.jpg"), {.title = {QStringLiteral("Label1")},
                                              .body = {QStringLiteral("Label2")},
                                              .small = {},
                                              .status = {}});
    for (const LotteryInfoSection& section : ReadLotteryInfo(folder())) AddTab(section);
    tabs_->setCurrentIndex(0);
}

void LotteryInfo::AddTab(const LotteryInfoSection& section) {
    const QString caption = ToQString(section.caption);
    const QString words = ToQString(section.text);
    auto* text = Named(new QPlainTextEdit(words), Member(QStringLiteral("Text1"), tabs_->count()));
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setTabStopDistance(SecondColumn(words, text->fontMetrics()));
    text->document()->setDocumentMargin(margin);
    text->setAccessibleName(caption);
    tabs_->addTab(text, ShownCaption(caption));
    setTabOrder(text, close_);
}
