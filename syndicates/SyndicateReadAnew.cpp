// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SyndicateReadAnew.h"

#include <QCoreApplication>

#include "core/old_files.h"
#include "core/settings.h"
#include "core/syndicate.h"
#include "platform/forms/ChangedOutside.h"
#include "platform/forms/Form.h"
#include "platform/system/Services.h"

namespace {

/// Where one was open and the settings that name its file have been read anew.
void KeepWithoutFile(Program& program, Form& form) {
    const State& state = program.state;
    const std::string text = SyndicateText(state);
    if (state.MembersOnDisk.empty() || text == state.MembersOnDisk) return;
    KeepUnsaved(program.folder, "SMembers", text);
    form.Say(QCoreApplication::translate(
        "SyndicateReadAnew", "No syndicate is open any more: all this is kept in Backup/Undo"));
}

}  // namespace

bool SyndicateReadAnew(Program& program, Form* form) {
    const State& state = program.state;
    const ShownFile shown{.name = state.Settings(setting::SyndicateFile),
                          .bytes = state.MembersOnDisk};
    if (shown.name.empty()) {
        KeepWithoutFile(program, *form);
        return false;
    }
    if (!ChangedOutside(program, form, shown, SyndicateText(state))) return false;
    LoadSyndicate(program.state, program.folder);
    return true;
}
