// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/payments.h"

#include <algorithm>

#include "core/failure.h"
#include "core/settings.h"
#include "core/syndicate.h"
#include "core/text.h"

namespace {

// The row of payments as the user sees it, in the file that is open.
std::string Place(const State& state, int row) {
    return state.Settings(setting::SyndicateFile) + ", payments of " +
           Quoted(state.Members(row - 1, member_column::Name));
}

const std::string& PaidUpTo(const State& state, int row) {
    return state.Members(row - 1, member_column::PaidUpTo);
}

}  // namespace

int PaymentCount(const State& state) {
    const int count = MemberCount(state) + 1;
    if (count > lastPayment) {
        throw Failure(state.Settings(setting::SyndicateFile) +
                      ": the payments have room for the manager and 99 members, but there are " +
                      std::to_string(count - 1) + " members.");
    }
    return count;
}

Money AmountPaid(const State& state, int row) {
    const std::string& text = state.Members(row - 1, member_column::AmountPaid);
    const auto amount = LeadingMoney(text);
    if (!amount) {
        throw Failure(Place(state, row) + ": expected an amount of money, but " + Quoted(text) +
                      " stands there, which is too large.");
    }
    return *amount;
}

bool IsOverdue(const State& state, int row, const Region& region, Date today) {
    const std::string& date = PaidUpTo(state, row);
    return date.empty() || DateFromText(date, region, today, Place(state, row)) < today;
}

Date ProposedDate(const State& state, int row, const Region& region, Date today) {
    const auto date = ReadDate(PaidUpTo(state, row), region, today);
    return date ? std::max(*date, today) : today;
}

std::string KeptAmount(std::string_view typed) {
    const std::string text = Trim(typed);
    const auto isSymbol = [](char character) {
        return static_cast<unsigned char>(character) > '9';
    };
    return {std::find_if_not(text.begin(), text.end(), isSymbol), text.end()};
}
