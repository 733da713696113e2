// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Shows the hourglass on the whole screen while it lives.
class Hourglass {
  public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};
