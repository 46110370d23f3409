// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNPoint.h"
#include "ZARNSize.h"
#include <Brixel/brixel_export.h>

#include <QRectF>

/**
 * A rectangle of float origin and size (see ZARNPoint for why float).
 *
 * Brixel keeps each geometry rule in the coordinates it was designed in, where y grows upward
 * in ordinary views and images, and converts once per kind of space. Qt widgets and images
 * count y downward; flipped() converts between the two for a container of a given height:
 *
 * \code
 * const ZARNRect badge = ZARNAlignRectOnRect(badgeRect, imageRect, 0);   // "top" = larger y
 * painter.drawImage(badge.flipped(image.height()).toQRectF(), badgeImage);
 * \endcode
 */
struct ZARNRect
{
    ZARNPoint origin;
    ZARNSize size;

    constexpr ZARNRect() = default;
    constexpr ZARNRect(ZARNPoint origin, ZARNSize size) : origin(origin), size(size) { }
    constexpr ZARNRect(float x, float y, float width, float height) : origin{x, y}, size{width, height} { }

    constexpr float x() const { return origin.x; }
    constexpr float y() const { return origin.y; }
    constexpr float width() const { return size.width; }
    constexpr float height() const { return size.height; }
    constexpr float maxX() const { return origin.x + size.width; }
    constexpr float maxY() const { return origin.y + size.height; }

    /// Narrows a Qt rectangle to float fields.
    static constexpr ZARNRect fromQRectF(const QRectF &rect)
    {
        return {float(rect.x()), float(rect.y()), float(rect.width()), float(rect.height())};
    }
    constexpr QRectF toQRectF() const { return {origin.x, origin.y, size.width, size.height}; }

    /// The same rectangle in a space of \a height whose y axis runs the other way:
    /// y' = height - y - h. Applying it twice gives the rectangle back.
    constexpr ZARNRect flipped(float height) const
    {
        return {origin.x, height - origin.y - size.height, size.width, size.height};
    }

    friend constexpr bool operator==(const ZARNRect &, const ZARNRect &) = default;
};

BRIXEL_EXPORT QDebug operator<<(QDebug debug, const ZARNRect &rect);
