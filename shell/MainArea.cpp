// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MainArea.h"

#include <QPainter>
#include <QVBoxLayout>

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
      panels_(new InfoPanels(program, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(toolbar_, 0, Qt::AlignTop);
    layout->addWidget(panels_, 1);
    // Wherever the mouse moves but on a picture, the pictures lose their border.
    setMouseTracking(true);
}

void MainArea::ShowPanels(bool shown) {
    if (painted_) ShowWelcome(!shown);
    panels_->SetShown(shown);
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

void MainArea::SuitLotteries(bool any) {
    anyLottery_ = any;
    if (welcome_ != nullptr) welcome_->SuitLotteries(any);
}

void MainArea::CompletePainting() {
    toolbar_->LoadPictures();
    TakePicture();
    ShowWelcome(!panels_->Shown());
}

void MainArea::ShowWelcome(bool shown) {
    if (shown && welcome_ == nullptr) {
        welcome_ = new Welcome(this);
        connect(welcome_, &Welcome::stepChosen, this, &MainArea::stepChosen);
        qobject_cast<QVBoxLayout*>(layout())->insertWidget(1, welcome_, 1, Qt::AlignCenter);
        welcome_->SuitLotteries(anyLottery_);
    }
    if (welcome_ != nullptr) welcome_->setVisible(shown);
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
