// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of ImportDraws and where they stand.
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include "databases/ImportDraws.h"
#include "databases/ImportDrawsPage.h"
#include "databases/ImportLeftOutPage.h"
#include "databases/ImportReadingPage.h"
#include "databases/ImportSources.h"
#include "databases/ImportTarget.h"
#include "platform/forms/DroppedFile.h"
#include "platform/forms/FormLayout.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/IconButton.h"
#include "platform/widgets/Widgets.h"

ImportDraws::ImportDraws(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("ImportDraws"), tr("Import Draws"), parent),
      session_({.region = program.services.region, .today = program.services.today()}) {
    auto* title = MakeTitle(QStringLiteral("ImportTitle"), tr("Import draws"));
    auto* explanation =
        MakeBody(QStringLiteral("ImportExplanation"),
                 tr("Results in any table become a lottery, or its newest draws: a file as the "
                    "operator offers it, a table on a web page, or a web address."));
    LayOutForm(this, title, explanation, MakeBodyLayout(), MakeActions());
    TakeDroppedFiles(*this);
    ConnectSources();
    ConnectPages();
    SetOpeningSize({960, 680});
}

QLayout* ImportDraws::MakeBodyLayout() {
    sources_ = new ImportSources;
    MakePages();
    target_ = ::Named(new ImportTarget, QStringLiteral("Target"));
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(sources_);
    column->addWidget(stack_, 1);
    column->addWidget(target_);
    return column;
}

void ImportDraws::MakePages() {
    hint_ = MakeBody(QStringLiteral("Hint"), QString());
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setMargin(24);
    hint_->setFrameShape(QFrame::StyledPanel);
    QFont larger = hint_->font();
    larger.setPointSizeF(larger.pointSizeF() * 1.2);
    hint_->setFont(larger);
    drawsPage_ = new ImportDrawsPage;
    readingPage_ = new ImportReadingPage;
    leftOutPage_ = new ImportLeftOutPage;
    pages_ = Named(new QTabWidget, QStringLiteral("Pages"));
    pages_->setAccessibleName(tr("Draws, how they are read, what is left out"));
    pages_->addTab(drawsPage_, tr("&Draws"));
    pages_->addTab(readingPage_, tr("&How it is read"));
    pages_->addTab(leftOutPage_, tr("&Left out"));
    stack_ = Named(new QStackedWidget, QStringLiteral("Stack"));
    stack_->addWidget(hint_);
    stack_->addWidget(pages_);
}

QLayout* ImportDraws::MakeActions() {
    auto* import = MakeIconButton(QStringLiteral("Import"), QStringLiteral("document-import"),
                                  tr("Writes the draws into the lottery"));
    import->StandOut();
    import_ = WithKeysOf(Command::Save, import);
    close_ = MakeCommandButton(QStringLiteral("Close"), Command::Close, tr(" Close "));
    SetCloseButton(close_);
    connect(import_, &QPushButton::clicked, this, [this] { Import(); });
    connect(close_, &QPushButton::clicked, this, [this] { Unload(); });
    return BuildActionRow({import_}, {close_});
}

void ImportDraws::ConnectSources() {
    connect(sources_, &ImportSources::fileWanted, this, [this] { ChooseFile(); });
    connect(sources_, &ImportSources::clipboardWanted, this, [this] { TakeClipboard(); });
    connect(sources_, &ImportSources::addressWanted, this,
            [this](const QString& address) { TakeAddress(address); });
    connect(sources_, &ImportSources::updateWanted, this, [this](int place) { Update(place); });
}

void ImportDraws::ConnectPages() {
    connect(drawsPage_, &ImportDrawsPage::ticked, this,
            [this](const std::vector<std::size_t>& rows, bool on) {
                session_.Tick(rows, on);
                ShowSession();
            });
    connect(drawsPage_, &ImportDrawsPage::erasChosen, this, [this](EraChoice choice) {
        session_.ChooseEras(choice);
        ShowSession();
    });
    connect(readingPage_, &ImportReadingPage::encodingChosen, this, [this](ImportEncoding chosen) {
        session_.ChooseEncoding(chosen);
        ShowSession();
    });
    connect(readingPage_, &ImportReadingPage::separatorChosen, this,
            [this](ImportSeparator chosen) {
                session_.ChooseSeparator(chosen);
                ShowSession();
            });
    connect(readingPage_, &ImportReadingPage::roleChosen, this,
            [this](std::size_t column, ColumnRole role) {
                session_.ChooseRole(column, role);
                ShowSession();
            });
    connect(readingPage_, &ImportReadingPage::mappingChosen, this,
            [this](const ImportMapping& mapping) {
                session_.ChooseMapping(mapping);
                ShowSession();
            });
    connect(leftOutPage_, &ImportLeftOutPage::copied, this, [this](int rows) {
        Say(rows == 1 ? tr("1 row copied") : tr("%1 rows copied").arg(rows));
    });
    connect(target_, &ImportTarget::changed, this, [this] { ShowEffect(); });
}
