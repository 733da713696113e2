// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <vector>

#include "tests/faults/fault_loop.h"

/// Saved entries.
std::vector<Scenario> EntryScenarios();

/// Draw databases: made, changed, deleted, downloaded.
std::vector<Scenario> DatabaseScenarios();

/// Draws that come from tables of results.
std::vector<Scenario> ImportScenarios();

/// Syndicates with their members, payments, diaries and notes.
std::vector<Scenario> SyndicateScenarios();

/// Start and end of the program, settings, slip templates, documents and copies of files.
std::vector<Scenario> FileScenarios();

/// Types numbers into the boxes `Text1(first)` and following.
void FillBoxes(QWidget& form, int first, std::initializer_list<const char*> numbers);
