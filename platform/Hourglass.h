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

/// Shows the normal pointer while it lives, also over an hourglass: for a message in the middle of
/// long work.
class NormalPointer {
  public:
    NormalPointer();
    ~NormalPointer();
    NormalPointer(const NormalPointer&) = delete;
    NormalPointer& operator=(const NormalPointer&) = delete;
};
