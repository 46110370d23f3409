// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include "../platform/ZARNRect.h"
#include "../platform/ZARNSize.h"
#include <Brixel/brixel_export.h>

namespace BrixelPrivate {

/**
 * Divides \a rect from its left edge: the first \a amount points (limited to 0 .. width; NaN
 * counts as 0) are the slice, the rest the remainder.
 */
struct RectDivision
{
    ZARNRect slice;
    ZARNRect remainder;
};
BRIXEL_AUTOTEST_EXPORT RectDivision divideRectFromLeft(const ZARNRect &rect, float amount);

/// Where an image of \a imageSize is drawn in \a area for the scaling \a scaling (see
/// ZARNImageAndTextCell), its origin snapped to whole points.
BRIXEL_AUTOTEST_EXPORT ZARNRect imageDestination(ZARNSize imageSize, const ZARNRect &area, int scaling);

} // namespace BrixelPrivate
