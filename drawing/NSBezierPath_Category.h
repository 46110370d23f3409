// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNRect.h"
#include <Brixel/brixel_export.h>

#include <QPainterPath>

/**
 * \file
 * Rounded-rectangle paths, and the line width paths are stroked with by default.
 *
 * Paths are built in the coordinates of the rectangle they are given; arcs run
 * counter-clockwise in the y-up sense from their start angle to their end angle, and each arc
 * is joined to the point before it by a straight segment, so the straight edges of a rounded
 * rectangle are those joins. Qt stores each arc as cubic curves.
 *
 * \code
 * const QPainterPath capsule = bezierPathWithRoundedRect(rowRect, rowRect.height() / 2);
 * painter.fillPath(capsule, highlight);
 * painter.strokePath(capsule, QPen(outline, bezierPathDefaultLineWidth()));
 * \endcode
 */

/// Which corners bezierPathWithRoundedRect(rect, radius, style) may round. A corner is
/// rounded only when the bits of both its edges are set: bottom-left needs Left and Bottom.
/// Bit value 1 and bits above 16 mean nothing.
enum ZARNRoundingStyle : unsigned int {
    ZARNRoundingStyleLeft = 2,    ///< the corners at the minimum x
    ZARNRoundingStyleRight = 4,   ///< the corners at the maximum x
    ZARNRoundingStyleTop = 8,     ///< the corners at the maximum y
    ZARNRoundingStyleBottom = 16, ///< the corners at the minimum y
};

namespace Brixel {

/**
 * A closed path around \a rect with all four corners rounded by \a radius. The radius is
 * clamped to half the shorter side (the short ends of a long rectangle become half circles);
 * a negative radius is used as it is. The arcs come in the order bottom-left, bottom-right,
 * top-right, top-left.
 */
BRIXEL_EXPORT QPainterPath bezierPathWithRoundedRect(const ZARNRect &rect, float radius);

/**
 * The same path with only the corners that \a roundingStyle selects rounded (see
 * ZARNRoundingStyle); a square corner is a move (bottom-left) or a line to the corner point.
 * A style of 0, or one that pairs no two edges (6, 24), gives the plain rectangle
 * (x, y) -> (x + w, y) -> (x + w, y + h) -> (x, y + h). 30 rounds every corner.
 */
BRIXEL_EXPORT QPainterPath bezierPathWithRoundedRect(const ZARNRect &rect, float radius, unsigned int roundingStyle);

/// The line width a path is stroked with when the caller does not choose one; 1.0 at first.
BRIXEL_EXPORT float bezierPathDefaultLineWidth();
/// Changes the default line width for every later stroke that uses it.
BRIXEL_EXPORT void setBezierPathDefaultLineWidth(float width);

} // namespace Brixel
