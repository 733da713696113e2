// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/field_reader.h"
