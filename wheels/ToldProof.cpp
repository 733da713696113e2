// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/ToldProof.h"

#include <QLabel>
#include <utility>

#include "platform/system/TextConversion.h"

ToldProof::ToldProof(QLabel& promise, const State& state)
    : QObject(&promise), promise_(promise), state_(state) {
    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this, [this] { TellLeft(); });
}

void ToldProof::Tell(const std::string& text) {
    idle_.stop();
    const QString shown = ToQString(text);
    promise_.setToolTip(shown);
    promise_.setAccessibleDescription(shown);
}

void ToldProof::TellWheel(const std::string& found) {
    found_ = found;
    LinesGone();
}

void ToldProof::LinesMade(wheels::Played played) {
    played_ = std::move(played);
    Tell(found_);
}

void ToldProof::LinesGone() {
    played_.reset();
    Tell(found_);
}

void ToldProof::LinesTakenOut() {
    if (!played_) return;
    Tell(found_ + " This is the whole wheel, not the lines left.");
    idle_.start(0);
}

void ToldProof::TellLeft() {
    const std::string left = wheels::LeftText(state_, *played_);
    if (!left.empty()) Tell(left);
}
