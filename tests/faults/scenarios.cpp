// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/scenarios.h"

#include <string>

#include "tests/faults/scenario_families.h"

void FillBoxes(QWidget& form, int first, std::initializer_list<const char*> numbers) {
    for (const char* number : numbers) {
        const std::string box = "Text1(" + std::to_string(first++) + ")";
        Session::Fill(form, box.c_str(), number);
    }
}

std::vector<Scenario> Scenarios() {
    std::vector<Scenario> all;
    for (const auto& family : {FileScenarios(), EntryScenarios(), DatabaseScenarios(),
                               ImportScenarios(), SyndicateScenarios()}) {
        all.insert(all.end(), family.begin(), family.end());
    }
    return all;
}
