// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNImageComposition.h"

#include "ZARNGeometry.h"

#include <QPainter>

#include <cmath>

namespace {

QImage transparentImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    if (!image.isNull())
        image.fill(Qt::transparent);
    return image;
}

// A y-up rectangle of an image of \a imageHeight as QImage's y-down QRectF.
QRectF inImageRows(const ZARNRect &rect, float imageHeight)
{
    return rect.flipped(imageHeight).toQRectF();
}

// The frame reduced so that it is not wider, and (by the height ratio whenever it is
// too tall) not taller, than the target.
QImage reducedFrame(const QImage &frame, float targetWidth, float targetHeight)
{
    const float frameWidth = float(frame.width());
    const float frameHeight = float(frame.height());
    float scale = 1.0f;
    if (frameWidth > targetWidth)
        scale = targetWidth / frameWidth;
    if (frameHeight > targetHeight && frameHeight / targetHeight > scale)
        scale = targetHeight / frameHeight;
    if (!(scale < 1.0f))
        return frame;

    QImage reduced = transparentImage(int(std::trunc(double(frameWidth) * scale)),
                                      int(std::trunc(double(frameHeight) * scale)));
    if (reduced.isNull())
        return reduced;
    QPainter painter(&reduced);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(reduced.rect()), frame, QRectF(frame.rect()));
    return reduced;
}

} // namespace

QImage Brixel::ZARNStretchedImageOverImage(const QImage &frameImage, const QImage &targetImage)
{
    if (frameImage.isNull() || targetImage.isNull())
        return {};
    const float width = float(targetImage.width());
    const float height = float(targetImage.height());
    QImage result = transparentImage(targetImage.width(), targetImage.height());
    const QImage frame = reducedFrame(frameImage, width, height);
    if (result.isNull() || frame.isNull())
        return result;

    const float frameHeight = float(frame.height());
    const float pieceWidth = std::trunc(float(frame.width()) / 3.0f);
    const float pieceHeight = std::trunc(frameHeight / 3.0f);
    const float sourceColumns[3] = {0, pieceWidth, 2 * pieceWidth};
    const float sourceRows[3] = {frameHeight - pieceHeight, pieceHeight, 0};   // top, middle, bottom
    const float columns[3] = {0, pieceWidth, width - pieceWidth};
    const float columnWidths[3] = {pieceWidth, width - 2 * pieceWidth, pieceWidth};
    const float rows[3] = {height - pieceHeight, pieceHeight, 0};
    const float rowHeights[3] = {pieceHeight, height - 2 * pieceHeight, pieceHeight};

    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const ZARNRect destination(columns[column], rows[row], columnWidths[column], rowHeights[row]);
            // A negative size (overlapping corners) or an empty piece draws nothing.
            if (!(destination.width() > 0 && destination.height() > 0 && pieceWidth > 0 && pieceHeight > 0))
                continue;
            // Each piece is copied out first so smoothing never samples its neighbours.
            const ZARNRect source(sourceColumns[column], sourceRows[row], pieceWidth, pieceHeight);
            const QImage piece = frame.copy(inImageRows(source, frameHeight).toRect());
            painter.drawImage(inImageRows(destination, height), piece);
        }
    }
    return result;
}

QImage Brixel::ZARNStretchImageOverImage(const QImage &frameImage, const QImage &targetImage)
{
    const QImage stretched = Brixel::ZARNStretchedImageOverImage(frameImage, targetImage);
    if (stretched.isNull())
        return {};
    QImage result = transparentImage(stretched.width(), stretched.height());
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(result.rect()), targetImage, QRectF(targetImage.rect()));
    painter.drawImage(0, 0, stretched);
    return result;
}

QImage Brixel::badgedImage(const QImage &image, const QImage &badge, int alignment)
{
    if (image.isNull())
        return {};
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (badge.isNull())
        return result;
    const float height = float(image.height());
    const ZARNRect badgeRect = Brixel::ZARNAlignRectOnRect(Brixel::ZARNMakeRectWithSize({float(badge.width()), float(badge.height())}),
                                                   Brixel::ZARNMakeRectWithSize({float(image.width()), height}), alignment);
    QPainter painter(&result);
    painter.drawImage(inImageRows(badgeRect, height).topLeft(), badge);
    return result;
}

QImage Brixel::ReplaceColorsInImage(const QImage &image, const QColor &color)
{
    if (image.isNull() || !color.isValid())
        return {};
    QImage result(image.size(), QImage::Format_ARGB32_Premultiplied);
    if (result.isNull())
        return result;
    result.fill(color);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationAtop);
    painter.drawImage(0, 0, image);
    return result;
}
