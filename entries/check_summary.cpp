// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/check_summary.h"

#include <tuple>

namespace {

constexpr std::size_t mostNamed = 2;

std::string Counted(int count, const std::string& one, const std::string& several) {
    return std::to_string(count) + (count == 1 ? one : several);
}

std::string CheckedText(const CheckSummary& summary) {
    const int entries = summary.Entries();
    if (summary.checked < entries) {
        return std::to_string(summary.checked) + " of " + Counted(entries, " entry", " entries") +
               " checked";
    }
    return (entries > 1 ? "All " : "") + Counted(entries, " entry", " entries") + " checked";
}

// Which lottery is meant is clear where there is only one.
std::string NewestText(const CheckSummary& summary) {
    if (summary.newest.empty() || summary.newest.size() > mostNamed) return {};
    std::string text;
    for (const auto& [lottery, date] : summary.newest) {
        text += (text.empty() ? " (newest: " : ", ") + DrawDate(date);
        if (summary.newest.size() > 1) text += " of " + lottery;
    }
    return text + ")";
}

std::string BestText(const CheckSummary::Best& best) {
    if (best.main < 0) return {};
    std::string text = " Best: ";
    if (best.main == 0 && !best.extra) text += "no numbers";
    if (best.main > 0) text += Counted(best.main, " number", " numbers");
    if (best.main > 0 && best.extra) text += " and ";
    if (best.extra) text += best.extraIsBonus ? "the bonus ball" : "the extra ball";
    return text + ".";
}

}  // namespace

void CheckSummary::AddChecked(const Best& found) {
    ++checked;
    if (std::tie(found.main, found.extra) > std::tie(best.main, best.extra)) best = found;
}

void CheckSummary::AddWaiting(const std::string& lottery, Date newestDraw) {
    ++waiting;
    newest[lottery] = newestDraw;
}

std::string SummaryText(const CheckSummary& summary) {
    if (summary.Entries() == 0) return "There are no entries to check.";
    std::string text = CheckedText(summary);
    if (summary.waiting > 0) {
        text += "; " + Counted(summary.waiting, " has no draw in its database yet",
                               " have no draw in their database yet");
        text += NewestText(summary);
    }
    if (summary.withoutDraw > 0) {
        text += "; " + Counted(summary.withoutDraw, " is of a day without a draw",
                               " are of days without a draw");
    }
    return text + "." + BestText(summary.best);
}
