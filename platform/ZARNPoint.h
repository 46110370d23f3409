// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QPointF>

class QDebug;

/**
 * A point with 32-bit float coordinates.
 *
 * Brixel's geometry rules are exact to the float: a value is stored as float after each
 * step, as the rules say, so results match pixel for pixel. Convert to and from Qt's
 * double-based QPointF at the edges. Coordinates follow the space they come from: y grows
 * upward in unflipped spaces (see ZARNRect::flipped()).
 */
struct ZARNPoint
{
    float x = 0.0f;
    float y = 0.0f;

    /// Narrows a Qt point to float coordinates.
    static constexpr ZARNPoint fromQPointF(QPointF point) { return {float(point.x()), float(point.y())}; }
    constexpr QPointF toQPointF() const { return {x, y}; }

    /// The same point in a space of \a height whose y axis runs the other way (y' = height - y).
    constexpr ZARNPoint flipped(float height) const { return {x, height - y}; }

    friend constexpr bool operator==(ZARNPoint, ZARNPoint) = default;
};

BRIXEL_EXPORT QDebug operator<<(QDebug debug, ZARNPoint point);
