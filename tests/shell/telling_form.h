// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRadioButton>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/forms/Form.h"
#include "platform/widgets/Widgets.h"
#include "shell/form_catalogue.h"

inline constexpr const char* tellingOption = "Option1(1)";

/// A form for the main window to open; tells what happens to it.
class TellingForm final : public Form {
  public:
    TellingForm(Program& openedFor, QWidget* parent)
        : Form(openedFor, QStringLiteral("TellingForm"), QStringLiteral("Telling"), parent) {
        auto* option = Named(new QRadioButton(this), QString::fromLatin1(tellingOption));
        connect(option, &QRadioButton::clicked, this, [] { steps.push_back("option"); });
        QTimer::singleShot(0, this, [] { steps.push_back("messages"); });
    }

    void Load() override { steps.push_back("load"); }

    int exec() override {
        steps.push_back("exec");
        if (whileOpen) whileOpen(program());
        return 0;
    }

    static inline std::vector<std::string> steps;
    static inline std::function<void(Program&)> whileOpen;
};

inline std::unique_ptr<Form> MakeTellingForm(Program& program, QWidget* parent) {
    TellingForm::steps.clear();
    return std::make_unique<TellingForm>(program, parent);
}

/// Opens the telling form in the place of one that changes the settings.
inline CatalogueEntry SettingsForm() {
    return {.menuEntry = "FilePreferences",
            .form = "TellingForm",
            .make = MakeTellingForm,
            .changesSettings = true};
}
