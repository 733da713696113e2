// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// The bytes of the supplied `Lottery Info.txt`: how some well-known lotteries are drawn, when, and
/// the odds of each class of prizes.
std::string LotteryInfoText();
