// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNShading.h"

#include <QColorTransform>
#include <QLinearGradient>
#include <QPaintDevice>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

// How many times the interpolation is sampled along the axis; the gradient between samples
// is linear, like the interpolation itself, so more samples change nothing visible.
constexpr int sampleCount = 64;

// The band the gradient may cover: the segment swept sideways far enough to cross the whole
// painted area, so its two long edges are the lines at right angles to the axis.
QPolygonF axisBand(QPointF start, QPointF end, const QRectF &area)
{
    const QPointF axis = end - start;
    const double length = std::hypot(axis.x(), axis.y());
    const QPointF corners[] = {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()};
    double reach = 1.0;
    for (const QPointF &corner : corners)
        reach = std::max(reach, std::hypot(corner.x() - start.x(), corner.y() - start.y()));
    const QPointF across = QPointF(-axis.y(), axis.x()) * (reach / length);
    return QPolygonF({start - across, end - across, end + across, start + across});
}

// A component for QColor: within 0..1, and 0 for NaN.
float unitComponent(float value)
{
    return std::isnan(value) ? 0.0f : std::clamp(value, 0.0f, 1.0f);
}

} // namespace

ZARNShading::ZARNShading() = default;

void ZARNShading::drawShading(QPainter &painter)
{
    m_numColorComponents = 3 + 1;
    const QPointF axis = m_endPoint - m_startPoint;
    if (axis.isNull() || !painter.device())
        return;

    const QColorSpace space = m_colorSpace.isValid() ? m_colorSpace : QColorSpace(QColorSpace::SRgb);
    const QColorTransform toSRgb = space.transformationToColorSpace(QColorSpace::SRgb);
    QLinearGradient gradient(m_startPoint, m_endPoint);
    for (int sample = 0; sample <= sampleCount; ++sample) {
        const float t = float(sample) / sampleCount;
        float rgba[4];
        Brixel::ZARNShadingStandardShadingFunction(this, &t, rgba);
        const QColor colour = QColor::fromRgbF(unitComponent(rgba[0]), unitComponent(rgba[1]),
                                               unitComponent(rgba[2]), unitComponent(rgba[3]));
        gradient.setColorAt(t, toSRgb.map(colour));
    }

    const QPaintDevice *device = painter.device();
    const QRectF area = painter.transform().inverted().mapRect(QRectF(0, 0, device->width(), device->height()));
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawPolygon(axisBand(m_startPoint, m_endPoint, area));
    painter.restore();
}

void Brixel::ZARNShadingStandardShadingFunction(void *info, const float *in, float *out)
{
    if (!info || !in || !out)
        return;
    const auto *shading = static_cast<const ZARNShading *>(info);
    const float t = in[0];
    const unsigned int count = std::min<unsigned int>(shading->numColorComponents(), 4);
    const ZARNShading::Components start = shading->startColorComponents();
    const ZARNShading::Components end = shading->endColorComponents();
    for (unsigned int i = 0; i < count; ++i)
        out[i] = start[i] + (end[i] - start[i]) * t;
}
