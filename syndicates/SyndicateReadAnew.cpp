// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SyndicateReadAnew.h"

#include "core/settings.h"
#include "core/syndicate.h"
#include "platform/forms/ChangedOutside.h"
#include "platform/system/Services.h"

bool SyndicateReadAnew(Program& program, QWidget* form) {
    const State& state = program.state;
    const ShownFile shown{.name = state.Settings(setting::SyndicateFile),
                          .bytes = state.MembersOnDisk};
    if (!ChangedOutside(program, form, shown, SyndicateText(state))) return false;
    LoadSyndicate(program.state, program.folder);
    return true;
}
