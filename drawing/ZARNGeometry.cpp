// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNGeometry.h"

#include <cmath>

namespace {

// The offset that centres a span of \a length inside one of \a within: the difference in
// float, then halved and added in double, then stored as float.
float centred(float start, float within, float length)
{
    return float(double(start) + double(within - length) * 0.5);
}

// The smaller of two values the way a C MIN macro picks it: a NaN or an infinity on the left
// loses unless the right one is larger.
template<typename T>
T lesser(T a, T b)
{
    return a < b ? a : b;
}

} // namespace

ZARNRect Brixel::ZARNRectCenterOnRect(const ZARNRect &rect, const ZARNRect &onRect)
{
    return {centred(onRect.x(), onRect.width(), rect.width()),
            centred(onRect.y(), onRect.height(), rect.height()), rect.width(), rect.height()};
}

ZARNRect Brixel::ZARNScaleRectToRect(const ZARNRect &rect, const ZARNRect &toRect)
{
    const float widthRatio = toRect.width() / rect.width();
    const float heightRatio = toRect.height() / rect.height();
    const double scale = lesser(double(widthRatio), double(heightRatio));
    return {rect.origin, {float(double(rect.width()) * scale), float(double(rect.height()) * scale)}};
}

ZARNRect Brixel::ZARNMakeRectWithSize(ZARNSize size)
{
    return {{0.0f, 0.0f}, size};
}

ZARNRect Brixel::ZARNNormalizedRect(const ZARNRect &rect)
{
    return {std::nearbyintf(rect.x()), std::nearbyintf(rect.y()), std::nearbyintf(rect.width()),
            std::nearbyintf(rect.height())};
}

ZARNPoint Brixel::ZARNIntegralPoint(ZARNPoint point)
{
    return {std::nearbyintf(point.x), std::nearbyintf(point.y)};
}

ZARNRect Brixel::ZARNAlignRectOnRect(const ZARNRect &rect, const ZARNRect &onRect, int alignment)
{
    if (alignment < 0 || alignment > 8)
        return rect;
    const int column = alignment % 3;
    const int row = alignment / 3;
    const float x = column == 0 ? onRect.x()
                  : column == 1 ? centred(onRect.x(), onRect.width(), rect.width())
                                : onRect.x() + onRect.width() - rect.width();
    const float y = row == 0 ? onRect.y() + onRect.height() - rect.height()
                  : row == 1 ? centred(onRect.y(), onRect.height(), rect.height())
                             : onRect.y();
    return {x, y, rect.width(), rect.height()};
}
