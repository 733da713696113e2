// SPDX-License-Identifier: GPL-3.0-or-later
// What the labels of the syndicates' forms take from the colours of the settings.
#include "syndicates/SManager.h"
#include "syndicates/SMembers.h"
#include "syndicates/SNotes.h"
#include "syndicates/SPayments.h"
#include "tests/syndicates/syndicate_form.h"

namespace {

using LabelsAndSlots = std::vector<std::pair<const char*, int>>;

template <typename FormType>
class SkinOf : public SyndicateForm<FormType> {
  protected:
    void ExpectColours(const LabelsAndSlots& labels) {
        State& state = this->test_.state;
        state.Settings(setting::SkinBits) = "2";
        for (int slot = setting::TitleColour; slot <= setting::StatusColour; ++slot) {
            state.Settings(slot) = "&H00000" + std::to_string(slot);
        }
        state.Settings(setting::BackgroundColour) = "&HFFEEDD";
        this->Open();
        for (const auto& [name, slot] : labels) {
            const auto* label = Find<QLabel>(*this->form_, name);
            EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(slot, 0, 0)) << name;
        }
    }
};

using SkinOfSManager = SkinOf<SManager>;
using SkinOfSMembers = SkinOf<SMembers>;
using SkinOfSPayments = SkinOf<SPayments>;
using SkinOfSNotes = SkinOf<SNotes>;

TEST_F(SkinOfSManager, ColoursItsLabels) {
    ExpectColours({{"Label1", 1},
                   {"Label3", 2},
                   {"Label2(0)", 3},
                   {"Label2(1)", 3},
                   {"Label2(2)", 3},
                   {"Label2(3)", 3},
                   {"Label2(4)", 3}});
}

TEST_F(SkinOfSMembers, ColoursItsLabels) {
    ExpectColours({{"Label1", 1},
                   {"Label7", 2},
                   {"Label2(0)", 3},
                   {"Label2(1)", 3},
                   {"Label2(2)", 3},
                   {"Label2(3)", 3},
                   {"Label2(4)", 3},
                   {"Label2(5)", 3}});
}

TEST_F(SkinOfSPayments, ColoursItsLabels) {
    ExpectColours({{"Label1", 1}, {"Label2(1)", 2}, {"Label2", 3}, {"Label3", 3}, {"Label4", 3}});
}

TEST_F(SkinOfSNotes, ColoursItsLabels) {
    ExpectColours({{"Label1", 2}, {"Label4", 2}, {"Label2", 4}});
}

}  // namespace
