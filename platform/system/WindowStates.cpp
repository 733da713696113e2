// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/WindowStates.h"

#include "platform/system/OwnSettings.h"

namespace {

QString SizeKey(const QString& window) { return window + QStringLiteral("/size"); }
QString MaximizedKey(const QString& window) { return window + QStringLiteral("/maximized"); }

}  // namespace

WindowStates::WindowStates(const QString& path) : file_(OpenOwnSettings(path)) {}

WindowStates::~WindowStates() = default;

std::optional<WindowState> WindowStates::Of(const QString& window) const {
    if (!file_) return std::nullopt;
    const WindowState state{.size = file_->value(SizeKey(window)).toSize(),
                            .maximized = file_->value(MaximizedKey(window)).toBool()};
    if (state.size.isEmpty()) return std::nullopt;
    return state;
}

void WindowStates::Keep(const QString& window, const WindowState& state) {
    if (!file_) return;
    file_->setValue(SizeKey(window), state.size);
    file_->setValue(MaximizedKey(window), state.maximized);
    file_->sync();
}
