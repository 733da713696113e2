// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "core/settings.h"
#include "shell/form_catalogue.h"
#include "test_folders.h"
#include "tests/support/form_test.h"

/// Every row of the catalogue whose form exists.
inline std::vector<CatalogueEntry> ExistingForms() {
    std::vector<CatalogueEntry> forms;
    for (const CatalogueEntry& entry : FormCatalogue()) {
        if (entry.make != nullptr) forms.push_back(entry);
    }
    return forms;
}

inline std::string FormTestName(const testing::TestParamInfo<CatalogueEntry>& form) {
    return std::string(form.param.form) + "_" + form.param.menuEntry;
}

/// A form of the catalogue, with a lottery in its folder.
class EveryFormTest : public testing::TestWithParam<CatalogueEntry> {
  protected:
    void SetUp() override {
        std::string database = "Sample\r\n\r\n6,49,0,0,1\r\n";
        for (int draw = 0; draw < 12; ++draw) {
            database += "01 Jun 05," + std::to_string(draw + 1) + ",12,23,34,45,49,0,7\r\n";
        }
        program.folder.Write("dbase1.txt", database);
        program.folder.Write("LotteryTemplates.txt", "Sample,6,49,0,0,\r\n");
        program.folder.Write("Lottery Info.txt", "#One\r\ntext\r\n#Two\r\ntext\r\n\r\n");
        std::ifstream wheel(SUPPLIED_DATA "/wheel49.dat", std::ios::binary);
        program.folder.Write("wheel49.dat", std::string{std::istreambuf_iterator<char>(wheel), {}});
        program.folder.MakeFolder("Backup");
        program.tick = 0.001;
        MakeDefaultSettings(program.state, program.folder);
    }

    void Open() {
        form = GetParam().make(program.program, nullptr);
        form->Load();
        if (GetParam().prepare != nullptr) GetParam().prepare(*form);
        form->show();
        QApplication::processEvents();
    }

    /// The form's own controls; parts that Qt makes inside of them are not named by us.
    std::vector<QWidget*> Controls() const {
        std::vector<QWidget*> controls;
        const auto widgets = form->findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            const QString name = widget->objectName();
            if (!name.isEmpty() && !name.startsWith(QStringLiteral("qt_")))
                controls.push_back(widget);
        }
        return controls;
    }

    static bool TakesFocus(const QWidget* control) {
        return control->isVisible() && (control->focusPolicy() & Qt::TabFocus) != 0 &&
               control->focusProxy() == nullptr;
    }

    TestProgram program;
    std::unique_ptr<Form> form;
};
