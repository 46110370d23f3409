// SPDX-License-Identifier: LGPL-2.1-or-later
#include "WindowBackground_p.h"

#include "../platform/ZARNRect.h"

#include <QPainter>

namespace BrixelPrivate {

namespace {

// Copies \a source's rectangle \a from into \a painter's image rectangle \a to, both given
// y-up in their own image (of heights \a sourceHeight and \a targetHeight).
void copyRect(QPainter &painter, float targetHeight, const QImage &source, const ZARNRect &from, const ZARNRect &to)
{
    painter.drawImage(to.flipped(targetHeight).toQRectF(), source, from.flipped(float(source.height())).toQRectF());
}

} // namespace

QImage windowBackgroundPattern(const QImage &artwork, int mode, float height)
{
    const int patternHeight = std::isfinite(height) ? int(std::clamp(height, 0.0f, 1.0e6f)) : 0;
    QImage pattern(artwork.width(), patternHeight, QImage::Format_ARGB32_Premultiplied);
    pattern.fill(Qt::transparent);
    if (pattern.isNull() || artwork.isNull())
        return pattern;
    const QImage source = artwork.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const float width = float(source.width());
    const float artworkHeight = float(source.height());
    const float half = artworkHeight * 0.5f;
    const float ph = float(patternHeight);
    QPainter painter(&pattern);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (mode == 1) {
        if (half > ph) {
            copyRect(painter, ph, source, {0, artworkHeight - ph, width, ph}, {0, 0, width, ph});
            return pattern;
        }
        copyRect(painter, ph, source, {0, half, width, half}, {0, ph - half, width, half});
        if (ph > half)
            copyRect(painter, ph, source, {0, half, width, 2}, {0, 0, width, ph - half});
        if (ph >= artworkHeight)
            copyRect(painter, ph, source, {0, 0, width, half}, {0, 0, width, half});
    } else if (mode == 2) {
        copyRect(painter, ph, source, {0, half, width, half}, {0, 0, width, ph});
    }
    return pattern;
}

QImage stretchedArtwork(const QImage &artwork, QSize size)
{
    QImage stretched(size.expandedTo({0, 0}), QImage::Format_ARGB32_Premultiplied);
    stretched.fill(Qt::transparent);
    if (stretched.isNull() || artwork.isNull())
        return stretched;
    QPainter painter(&stretched);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QRect(QPoint(0, 0), size), artwork);
    return stretched;
}

} // namespace BrixelPrivate
