// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/lucky_dip.h"
