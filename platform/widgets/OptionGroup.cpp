// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/OptionGroup.h"

#include <QRadioButton>

#include "platform/widgets/Widgets.h"

QRadioButton* OptionGroup::Add(const QString& name, const QString& caption) {
    auto* option = Named(new QRadioButton(ShownCaption(caption)), name);
    option->setChecked(options_.empty());
    // A choice by mouse or key is told both as a change and as a click.
    connect(option, &QRadioButton::pressed, this,
            [this, option] { chosenAtPress_ = option->isChecked(); });
    connect(option, &QRadioButton::clicked, this, [this] {
        if (chosenAtPress_) Q_EMIT clicked();
    });
    connect(option, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) Q_EMIT clicked();
    });
    options_.push_back(option);
    return option;
}

int OptionGroup::Index() const {
    int index = 0;
    while (!Option(index).isChecked()) ++index;
    return index;
}
