// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/stored_preferences.h"

#include "core/default_settings.h"
#include "core/text.h"

int ShownStrength(const State& state, const FilterStrength& filter) {
    return LeadingWhole(state.Settings(filter.slot)) == 2 ? 1 : 0;
}

void StorePreferences(State& state, const EnteredPreferences& entered) {
    const int bits = (entered.pictures ? 1 : 0) + (entered.colours ? 2 : 0);
    state.Settings(setting::SkinBits) = PlainDigits(bits);
    for (std::size_t i = 0; i < filterStrengths.size(); ++i) {
        const FilterStrength& filter = filterStrengths.at(i);
        state.Settings(filter.slot) = entered.strengths.at(i) == 0 ? filter.first : filter.second;
    }
    for (int i = 0; i < changeableLinks; ++i) {
        const EnteredLink& link = entered.links.at(static_cast<std::size_t>(i));
        const std::string caption = StoredCaption(link.caption);
        // Kept on purpose: an emptied caption takes no link away.
        if (caption.empty()) continue;
        state.Settings(setting::LinkCaptions + 1 + i) = caption;
        state.Settings(setting::LinkAddresses + 1 + i) = StoredAddress(link.address);
    }
}

std::string StoredCaption(std::string_view typed) {
    std::string stored;
    for (const char character : typed) {
        // Kept on purpose: what is doubled already is doubled again.
        if (character == '&') stored += '&';
        stored += character == ',' ? '\'' : character;
    }
    return Trim(stored);
}

std::string StoredAddress(std::string_view typed) {
    constexpr std::string_view prefix = "http://";
    const std::string address = Trim(typed);
    // Kept on purpose: "https://" too gets the prefix.
    if (LowerCase(address).starts_with(prefix)) return address;
    return std::string(prefix) + address;
}

void ResetColours(State& state) {
    for (const setting::Slot slot : colourSlots) state.Settings(slot) = DefaultSetting(slot);
}
