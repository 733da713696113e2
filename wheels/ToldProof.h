// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

class QLabel;

/// Says what the verifier found beside the promise that a label makes: as its tool-tip and its
/// accessible description.
void TellProof(QLabel& promise, const std::string& found);
