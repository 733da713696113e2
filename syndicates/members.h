// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/state.h"
#include "core/syndicate.h"

/// The ways in which a member may pay, in the order of the lists.
inline constexpr std::array<const char*, 4> payByMethods = {"Cash", "Cheque", "Credit/debit card",
                                                            "Internet transfer"};

/// Where a method stands among them; -1 where it is none of them.
int PayByIndex(std::string_view method);

/// What is typed of a member, name first, without blanks at the ends, and the method.
struct MemberDetails {
    std::array<std::string, memberDetails> texts;
    std::string payBy;
};

/// Puts the details into the row of that name, or behind the last member. Amount and date paid of a
/// member who was there stay. Where all 100 rows are taken by others it is a `Failure`.
void AddMember(State& state, const MemberDetails& member);

/// Takes out the first member of that name; the rows behind move up. Where all 100 rows are taken,
/// the last one stays as it is and so is there twice.
void DeleteMember(State& state, std::string_view name);

/// Puts the members in the order of the bytes of their names; equal names keep theirs.
void SortMembers(State& state);
