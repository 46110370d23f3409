// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QColor>
#include <QImage>

/**
 * \file
 * Images built off screen: a frame stretched in nine pieces over another image's size, a
 * badge placed on an image, and an image recoloured to one flat colour.
 *
 * Every function returns a new ARGB32 premultiplied image and leaves its inputs alone.
 * Placement follows the library's y-up image coordinates ("top" is the visual top of the
 * image; the functions convert to QImage's rows themselves). A null input gives a null image
 * where stated, and so does a result too large to allocate.
 *
 * \code
 * const QImage button = ZARNStretchImageOverImage(frameArtwork, background);
 * const QImage flagged = badgedImage(icon, warningBadge, 2);   // top right
 * \endcode
 */

namespace Brixel {

/**
 * \a frameImage cut into a three-by-three grid and stretched to \a targetImage's size: the
 * corners keep their size, the edges stretch along one axis, the centre along both.
 *
 * A frame larger than the target is first reduced. The width ratio is used when it is only
 * too wide; whenever it is too tall, the height ratio replaces it, even when the width ratio
 * is smaller (so a frame both too wide and too tall may still overflow sideways). The reduced
 * size is truncated to whole pixels. Pieces are a third of the frame each way (truncated),
 * taken from its left and bottom edges; columns beyond three thirds are never used. When the
 * corners overlap, the middle pieces get a negative size and are not drawn.
 *
 * Null when either image is null or the target has no area.
 */
BRIXEL_EXPORT QImage ZARNStretchedImageOverImage(const QImage &frameImage, const QImage &targetImage);

/// \a targetImage with ZARNStretchedImageOverImage(\a frameImage, \a targetImage) drawn over
/// it; null when either input is null.
BRIXEL_EXPORT QImage ZARNStretchImageOverImage(const QImage &frameImage, const QImage &targetImage);

/**
 * \a image with \a badge drawn over it, unscaled, at one of nine places chosen by
 * \a alignment as in ZARNAlignRectOnRect() (0 top left ... 8 bottom right; any other code
 * puts the badge at the image's bottom-left corner). A null \a badge gives a copy of
 * \a image; a null \a image gives a null image.
 */
BRIXEL_EXPORT QImage badgedImage(const QImage &image, const QImage &badge, int alignment);

/// \a image's shape filled with \a color: \a color wherever the image has coverage, scaled
/// by the image's own alpha, and transparent elsewhere. Null when \a image is null or
/// \a color is invalid.
BRIXEL_EXPORT QImage ReplaceColorsInImage(const QImage &image, const QColor &color);

} // namespace Brixel
