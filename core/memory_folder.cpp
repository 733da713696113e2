// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/memory_folder.h"
