// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

namespace BrixelPrivate {

/// Seconds in one unit of \a component: 1, 60, 3600, 86400, 604800 for seconds to weeks;
/// 1 for any other number.
BRIXEL_AUTOTEST_EXPORT double _BXTimeIntervalComponentScalar(int component);

/// Units of \a component before the next larger one rolls over: 60, 60, 24, 7, 1 for seconds
/// to weeks; 1 for any other number.
BRIXEL_AUTOTEST_EXPORT double _BXTimeIntervalComponentBase(int component);

} // namespace BrixelPrivate
