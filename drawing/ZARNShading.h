// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QColorSpace>
#include <QPointF>

#include <array>

class QPainter;

/**
 * Paints a linear (axial) gradient between two colours along the segment from startPoint()
 * to endPoint(). Nothing is painted before the start or after the end of the axis: the
 * gradient fills only the band between the two lines through the end points at right angles
 * to the axis, clipped by whatever clip the painter has.
 *
 * Colours are given as red, green, blue and alpha components from 0.0 to 1.0 in colorSpace()
 * (sRGB unless set otherwise). Each colour along the axis comes from
 * ZARNShadingStandardShadingFunction(), plain linear interpolation in single precision.
 *
 * \code
 * ZARNShading shading;
 * shading.setStartColorComponents({0.2f, 0.4f, 0.8f, 1.0f});   // bottom
 * shading.setEndColorComponents({0.5f, 0.7f, 1.0f, 1.0f});     // top
 * shading.setStartPoint({0.5, 0.0});
 * shading.setEndPoint({0.5, rowHeight});
 * QPainter painter(&image);
 * shading.drawShading(painter);
 * \endcode
 *
 * A new shading has transparent black at both ends, so it paints nothing visible. Equal
 * colours paint one flat band; coinciding points paint nothing.
 */
class BRIXEL_EXPORT ZARNShading
{
public:
    using Components = std::array<float, 4>;

    /// Transparent black at both ends, sRGB, and the axis (0.5, 0) to (0.5, 1).
    ZARNShading();

    Components startColorComponents() const { return m_startColorComponents; }
    void setStartColorComponents(const Components &components) { m_startColorComponents = components; }
    Components endColorComponents() const { return m_endColorComponents; }
    void setEndColorComponents(const Components &components) { m_endColorComponents = components; }

    /// The colour space the components are given in. Only RGB spaces exist here, so colours
    /// always have four components; an invalid space is treated as sRGB.
    QColorSpace colorSpace() const { return m_colorSpace; }
    void setColorSpace(const QColorSpace &colorSpace) { m_colorSpace = colorSpace; }

    QPointF startPoint() const { return m_startPoint; }
    void setStartPoint(QPointF point) { m_startPoint = point; }
    QPointF endPoint() const { return m_endPoint; }
    void setEndPoint(QPointF point) { m_endPoint = point; }

    /// Components per colour, alpha included, that the interpolation produces: the colour
    /// space's three plus alpha. It is set by drawShading() and 0 before the first drawing.
    unsigned int numColorComponents() const { return m_numColorComponents; }

    /// Paints the gradient with \a painter in its current coordinates and clip.
    void drawShading(QPainter &painter);

private:
    Components m_startColorComponents{};
    Components m_endColorComponents{};
    QColorSpace m_colorSpace{QColorSpace::SRgb};
    QPointF m_startPoint{0.5, 0.0};
    QPointF m_endPoint{0.5, 1.0};
    unsigned int m_numColorComponents = 0;
};

namespace Brixel {

/**
 * The interpolation that colours a ZARNShading: \a info is the shading, \a in points at the
 * position t along the axis (0 at the start, 1 at the end) and \a out receives
 * numColorComponents() floats, each start + (end - start) * t in single precision, with no
 * clamping of t. A null argument does nothing.
 */
BRIXEL_EXPORT void ZARNShadingStandardShadingFunction(void *info, const float *in, float *out);

} // namespace Brixel
