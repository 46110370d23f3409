// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSColorAdditions.h"

#include "NumberText_p.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

// The number at the start of text after blanks, as a colour component in [0, 1].
float leadingComponent(QStringView text)
{
    return float(std::clamp(BrixelPrivate::leadingNumber(text), 0.0, 1.0));
}

quint16 storedComponent(float component)
{
    return QColor::fromRgbF(component, 0.0f, 0.0f).rgba64().red();
}

// The shortest decimal, up to five places, that QColor stores as the 16-bit value stored.
float shortestComponent(quint16 stored)
{
    const double exact = stored / 65535.0;
    for (double scale = 1.0; scale < 1e5; scale *= 10.0) {
        const float candidate = float(std::round(exact * scale) / scale);
        if (storedComponent(candidate) == stored)
            return candidate;
    }
    // Five places always identify the 16-bit value; printing rounds to them.
    return float(exact);
}

} // namespace

QRgbaFloat32 Brixel::rgbaFromCalibratedRGBString(const QString &string)
{
    const QList<QStringView> parts = QStringView(string).split(u',');
    if (parts.size() <= 3)
        return QRgbaFloat32{0.0f, 0.0f, 0.0f, 1.0f};
    return QRgbaFloat32{leadingComponent(parts.at(0)), leadingComponent(parts.at(1)),
                        leadingComponent(parts.at(2)), leadingComponent(parts.at(3))};
}

QColor Brixel::colorFromCalibratedRGBString(const QString &string)
{
    const QRgbaFloat32 rgba = rgbaFromCalibratedRGBString(string);
    return QColor::fromRgbF(rgba.r, rgba.g, rgba.b, rgba.a);
}

QString Brixel::asCalibratedRGBString(QRgbaFloat32 rgba)
{
    const QString comma(u',');
    return BrixelPrivate::fixedText(rgba.r, 5) + comma + BrixelPrivate::fixedText(rgba.g, 5) + comma
        + BrixelPrivate::fixedText(rgba.b, 5) + comma + BrixelPrivate::fixedText(rgba.a, 5);
}

QString Brixel::asCalibratedRGBString(const QColor &color)
{
    const QRgba64 stored = color.toRgb().rgba64();
    return QString::asprintf("%.5f,%.5f,%.5f,%.5f", double(shortestComponent(stored.red())),
                             double(shortestComponent(stored.green())), double(shortestComponent(stored.blue())),
                             double(shortestComponent(stored.alpha())));
}
