// SPDX-License-Identifier: LGPL-2.1-or-later
#include "HighlightGradientCache_p.h"

#include "../platform/BrixelNumbers.h"

#include "../drawing/ZARNShading.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace BrixelPrivate {

namespace {

// The row height in the float the comparison is made in; beyond float's range it saturates
// (such heights never match a stored whole number anyway), NaN stays NaN.
float asFloat(qreal rowHeight)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return std::isnan(rowHeight) ? std::numeric_limits<float>::quiet_NaN() : float(std::clamp(rowHeight, -largest, largest));
}

int imageHeight(qreal rowHeight)
{
    if (!(rowHeight > 1.0)) // NaN included
        return 1;
    return rowHeight >= HighlightGradientCache::maximumImageHeight ? HighlightGradientCache::maximumImageHeight
                                                                   : int(std::ceil(rowHeight));
}

// \a base with its saturation and brightness moved by the given amounts, kept within 0..1.
QColor shifted(const QColor &base, float saturationChange, float brightnessChange)
{
    const auto unit = [](float value) { return std::clamp(value, 0.0f, 1.0f); };
    return QColor::fromHsvF(base.hsvHueF(), unit(base.hsvSaturationF() + saturationChange),
                            unit(base.valueF() + brightnessChange), base.alphaF());
}

ZARNShading::Components components(const QColor &colour)
{
    const QColor rgb = colour.toRgb();
    return {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()};
}

QImage gradientImage(int height, const QColor &systemHighlight)
{
    const QColor base = (systemHighlight.isValid() ? systemHighlight : QColor(Qt::black)).toHsv();
    ZARNShading shading;
    shading.setStartColorComponents(components(shifted(base, -0.15f, 0.15f)));
    shading.setEndColorComponents(components(shifted(base, 0.1f, -0.1f)));
    // The axis runs from the top (start) down to the bottom, in y-up terms.
    shading.setStartPoint({0.0, qreal(height)});
    shading.setEndPoint({0.0, 0.0});

    QImage image(HighlightGradientCache::imageWidth, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(0, height);
    painter.scale(1, -1);
    shading.drawShading(painter);
    return image;
}

} // namespace

QImage HighlightGradientCache::image(qreal rowHeight, const QColor &systemHighlight)
{
    if (asFloat(rowHeight) == float(m_lastRowHeight) && !m_image.isNull())
        return m_image;
    m_image = gradientImage(imageHeight(rowHeight), systemHighlight);
    m_lastRowHeight = Brixel::truncatedToInt32(rowHeight);
    ++m_rebuildCount;
    return m_image;
}

void HighlightGradientCache::invalidate()
{
    m_lastRowHeight = -1;
}

} // namespace BrixelPrivate
