// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/failure.h"

/// A table or list in memory was asked for a place that it does not have. What led there stands in
/// a file that the table does not know, so the report at the end of the run adds the lottery in
/// use.
class OutsideTable : public Failure {
  public:
    using Failure::Failure;
};
