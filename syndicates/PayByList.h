// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class ComboList;

/// The list `Combo1` of the ways to pay, the first of them chosen.
ComboList* MakePayByList();
