// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Before a function: it is compiled twice, for registers of 256 bits and for all processors, and
/// which of the two runs is found out when the program starts. What it calls must be inlined into
/// it to be compiled twice as well, see `INLINED`. Sanitizers are not ready for the choice so
/// early, so under them there is one version only.
#if defined(__x86_64__) && !defined(__clang__) && !defined(QUILLON_SANITIZE)
#define IN_WIDE_REGISTERS_TOO __attribute__((target_clones("avx2", "default")))
#else
#define IN_WIDE_REGISTERS_TOO
#endif

/// Before a function or between a lambda's parameters and body: always compiled into its caller.
#define INLINED __attribute__((always_inline))
