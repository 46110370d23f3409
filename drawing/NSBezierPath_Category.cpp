// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSBezierPath_Category.h"

#include <cmath>

namespace {

float defaultLineWidth = 1.0f;

// The radius clamp: the shorter side taken in float, halved and compared in double, the
// result stored as float. A NaN radius loses the comparison and gives the half side.
float clampedRadius(const ZARNRect &rect, float radius)
{
    const float shorter = rect.width() < rect.height() ? rect.width() : rect.height();
    const double half = double(shorter) * 0.5;
    return float(double(radius) < half ? double(radius) : half);
}

// Appends an arc of \a radius around \a centre running counter-clockwise (y up) from
// \a startDegrees to \a endDegrees. A path with a current point gets a straight segment to
// the arc's start; on an empty path the arc's start becomes the first point. An arc of radius 0
// is its centre alone: QPainterPath ignores arcs in an empty rectangle,
// which would leave the corner out (and an empty path's first point at the origin).
void appendArc(QPainterPath &path, ZARNPoint centre, float radius, double startDegrees, double endDegrees)
{
    if (radius == 0.0f) {
        const QPointF corner(centre.x, centre.y);
        path.elementCount() == 0 ? path.moveTo(corner) : path.lineTo(corner);
        return;
    }
    double sweep = std::fmod(endDegrees - startDegrees, 360.0);
    if (sweep <= 0.0)
        sweep += 360.0;
    // QPainterPath measures angles with y down; negating them keeps the y-up orientation in
    // the path's own coordinates.
    const QRectF bounds(double(centre.x) - radius, double(centre.y) - radius, 2.0 * radius, 2.0 * radius);
    if (path.elementCount() == 0)
        path.arcMoveTo(bounds, -startDegrees);
    path.arcTo(bounds, -startDegrees, -sweep);
}

bool hasBits(unsigned int style, unsigned int bits)
{
    return (style & bits) == bits;
}

} // namespace

QPainterPath Brixel::bezierPathWithRoundedRect(const ZARNRect &rect, float radius)
{
    return Brixel::bezierPathWithRoundedRect(rect, radius,
                                     ZARNRoundingStyleLeft | ZARNRoundingStyleRight | ZARNRoundingStyleTop | ZARNRoundingStyleBottom);
}

QPainterPath Brixel::bezierPathWithRoundedRect(const ZARNRect &rect, float radius, unsigned int roundingStyle)
{
    const float r = clampedRadius(rect, radius);
    const float x = rect.x();
    const float y = rect.y();
    const float w = rect.width();
    const float h = rect.height();
    QPainterPath path;

    if (hasBits(roundingStyle, ZARNRoundingStyleLeft | ZARNRoundingStyleBottom))
        appendArc(path, {x + r, y + r}, r, 180, 270);
    else
        path.moveTo(x, y);

    if (hasBits(roundingStyle, ZARNRoundingStyleRight | ZARNRoundingStyleBottom))
        appendArc(path, {x + w - r, y + r}, r, 270, 0);
    else
        path.lineTo(x + w, y);

    if (hasBits(roundingStyle, ZARNRoundingStyleRight | ZARNRoundingStyleTop))
        appendArc(path, {x + w - r, y + h - r}, r, 0, 90);
    else
        path.lineTo(x + w, y + h);

    if (hasBits(roundingStyle, ZARNRoundingStyleLeft | ZARNRoundingStyleTop))
        appendArc(path, {x + r, y + h - r}, r, 90, 180);
    else
        path.lineTo(x, y + h);

    path.closeSubpath();
    return path;
}

float Brixel::bezierPathDefaultLineWidth()
{
    return defaultLineWidth;
}

void Brixel::setBezierPathDefaultLineWidth(float width)
{
    defaultLineWidth = width;
}
