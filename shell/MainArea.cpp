// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MainArea.h"

#include <QPainter>
#include <QVBoxLayout>

#include "core/failure.h"
#include "core/saved_entries.h"
#include "platform/forms/ScrollingBody.h"
#include "platform/forms/Skin.h"
#include "shell/InfoPanels.h"
#include "shell/Toolbar.h"
#include "shell/Welcome.h"

namespace {

constexpr const char* pictureFile = "SkinMain.jpg";

}  // namespace

MainArea::MainArea(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      toolbar_(new Toolbar(program.services.region, this)),
      body_(new ScrollingBody(this)),
      panels_(new InfoPanels(program, &body_->Content())) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(toolbar_, 0, Qt::AlignTop);
    layout->addWidget(body_, 1);
    auto* content = new QVBoxLayout(&body_->Content());
    content->setContentsMargins(0, 0, 0, 0);
    content->addWidget(panels_, 1);
    // Wherever the mouse moves but on a picture, the pictures lose their border.
    setMouseTracking(true);
}

void MainArea::ShowPanels(bool shown) {
    // What goes makes room before the other comes, or the window would grow for both.
    if (painted_ && shown) ShowWelcome(false);
    panels_->SetShown(shown);
    if (painted_ && !shown) ShowWelcome(true);
}

void MainArea::TakePicture() {
    if (!painted_) return;
    if (!SkinChoiceOf(program_.state).pictures) {
        picture_ = {};
    } else if (program_.folder.Exists(pictureFile)) {
        picture_ = SkinPicture(program_.state, program_.folder, QString::fromLatin1(pictureFile));
    }
    update();
}

void MainArea::RenewWelcome() {
    if (welcome_ == nullptr || welcome_->isHidden()) return;
    const Services& services = program_.services;
    try {
        welcome_->Suit(LookAtLotteries(program_.folder, services.region, services.today()),
                       program_.folder.Exists(savedEntriesFile));
    } catch (const Failure&) {
        // It offers what it offered before: no file ends the run for the sake of the welcome.
    }
}

void MainArea::CompletePainting() {
    toolbar_->LoadPictures();
    TakePicture();
    ShowWelcome(!panels_->Shown());
    Q_EMIT completed();
}

void MainArea::ShowWelcome(bool shown) {
    if (shown && welcome_ == nullptr) {
        QWidget& content = body_->Content();
        welcome_ = new Welcome(&content);
        connect(welcome_, &Welcome::stepChosen, this, &MainArea::stepChosen);
        connect(welcome_, &Welcome::drawWanted, this, &MainArea::drawWanted);
        qobject_cast<QVBoxLayout*>(content.layout())->addWidget(welcome_, 1, Qt::AlignCenter);
    }
    if (welcome_ == nullptr) return;
    welcome_->setVisible(shown);
    RenewWelcome();
    if (shown) welcome_->TakeFocus();
}

void MainArea::mouseMoveEvent(QMouseEvent* event) {
    QWidget::mouseMoveEvent(event);
    toolbar_->ClearBorders();
}

void MainArea::paintEvent(QPaintEvent*) {
    if (!painted_) {
        painted_ = true;
        QMetaObject::invokeMethod(this, &MainArea::CompletePainting, Qt::QueuedConnection);
    }
    if (picture_.isNull()) return;
    QPainter painter(this);
    PaintSkin(painter, rect(), picture_, palette());
}
