// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNFormatter.h"

ZARNFormatter::~ZARNFormatter() = default;
