// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNRect.h"
#include <Brixel/brixel_export.h>

/**
 * \file
 * Rectangle and point helpers that every drawing class of the library places its pixels
 * with. Their float storage, evaluation order and tie rules are part of the library's look:
 * a cell that centres an image with ZARNRectCenterOnRect() and snaps it with
 * ZARNIntegralPoint() lands on the same pixel every time.
 *
 * All of them work in the coordinates they are given and never look at flipping: "top"
 * means the larger y, as in an unflipped view. None allocates, keeps state or fails; zero or
 * NaN sizes give the IEEE results stated below.
 *
 * \code
 * const ZARNRect icon = ZARNRectCenterOnRect({0, 0, 16, 16}, cellRect);
 * const ZARNPoint origin = ZARNIntegralPoint(icon.origin);   // 2.5 rounds to 2, 3.5 to 4
 * \endcode
 */

namespace Brixel {

/// \a rect's size centred on \a onRect: x = bx + (bw - aw) * 0.5, the difference taken in
/// float, halving and sum in double, stored as float. No rounding to whole points; a larger
/// rectangle gets an origin left of or below \a onRect's.
BRIXEL_EXPORT ZARNRect ZARNRectCenterOnRect(const ZARNRect &rect, const ZARNRect &onRect);

/// \a rect scaled uniformly until one side touches \a toRect's size (enlarging too), keeping
/// \a rect's origin; \a toRect's origin is not used. Ratios are divided in float, the smaller
/// one chosen and the sides multiplied in double. A zero side divides by zero: the infinite
/// ratio loses against a finite one, and two infinite ratios give NaN sizes.
BRIXEL_EXPORT ZARNRect ZARNScaleRectToRect(const ZARNRect &rect, const ZARNRect &toRect);

/// A rectangle at (0, 0) of \a size.
BRIXEL_EXPORT ZARNRect ZARNMakeRectWithSize(ZARNSize size);

/// Each of x, y, width and height rounded to the nearest integer, halves to even
/// (0.5 gives 0, 1.5 gives 2, -0.5 gives -0). The far edge may move by up to one unit.
BRIXEL_EXPORT ZARNRect ZARNNormalizedRect(const ZARNRect &rect);

/// Both coordinates rounded to the nearest integer, halves to even.
BRIXEL_EXPORT ZARNPoint ZARNIntegralPoint(ZARNPoint point);

/**
 * \a rect's size placed at one of nine places inside \a onRect, counted row by row from the
 * top left (larger y is the top):
 *
 * | alignment | x      | y      |
 * |-----------|--------|--------|
 * | 0, 1, 2   | left, centre, right | top    |
 * | 3, 4, 5   | left, centre, right | middle |
 * | 6, 7, 8   | left, centre, right | bottom |
 *
 * Any other code, negative ones included, returns \a rect unchanged. Centres are computed as
 * in ZARNRectCenterOnRect(). In a flipped view codes 0 to 2 land at the visual bottom.
 */
BRIXEL_EXPORT ZARNRect ZARNAlignRectOnRect(const ZARNRect &rect, const ZARNRect &onRect, int alignment);

} // namespace Brixel
