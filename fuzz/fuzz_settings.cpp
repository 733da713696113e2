// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "core/colour.h"
#include "core/date.h"
#include "core/failure.h"
#include "core/memory_folder.h"
#include "core/settings.h"
#include "core/text.h"

namespace {

void ReadColour(const State& state, setting::Slot slot) {
    const std::string place = PlaceOf(slot);
    try {
        ColourFromText(state.Settings(slot), place);
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with(place)) std::abort();
    }
}

}  // namespace

// Any bytes load or are a failure that names the file, every slot can be asked for what it means,
// and what was read is the same after it was saved and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::unique_ptr<State> state = std::make_unique<State>();
    static const std::unique_ptr<State> again = std::make_unique<State>();
    MemoryFolder folder;
    folder.Write(settingsFile, {reinterpret_cast<const char*>(data), size});
    state->Settings.Fill({});
    try {
        LoadSettings(*state, folder);
    } catch (const Failure& failure) {
        if (!std::string_view(failure.what()).starts_with("quillon.ini, line ")) std::abort();
        return 0;
    }
    for (int slot = setting::TitleColour; slot <= setting::BackgroundColour; ++slot) {
        ReadColour(*state, static_cast<setting::Slot>(slot));
    }
    for (int slot = setting::SkinBits; slot <= setting::LongRunStrength; ++slot) {
        LeadingWhole(state->Settings(slot));
    }
    const Date today = std::chrono::year(2005) / 6 / 1;
    for (const int slot : {setting::BirthDate, setting::DrawDate}) {
        const auto date = ReadDate(state->Settings(slot), {}, today);
        if (date && !date->ok()) std::abort();
    }
    SaveSettings(*state, folder);
    LoadSettings(*again, folder);
    for (int slot = 1; slot <= setting::last; ++slot) {
        if (again->Settings(slot) != state->Settings(slot)) std::abort();
    }
    return 0;
}
