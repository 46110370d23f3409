// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QImage>

namespace BrixelPrivate {

/**
 * The one-column background pattern of a window \a height high, built from \a artwork in
 * background mode \a mode (the artwork's rows are described y-up, row 0 at the bottom):
 *
 * - mode 1: a window shorter than half the artwork shows the artwork's top \a height rows;
 *   otherwise the artwork's upper half sits at the top, a two-row strip from the artwork's
 *   middle is stretched below it, and from the artwork's full height on, the artwork's lower
 *   half is drawn at the bottom over the strip (between half and full height there is no
 *   bottom part);
 * - mode 2: the artwork's upper half stretched to the whole height;
 * - any other mode: a transparent pattern.
 *
 * The pattern is as wide as the artwork and \a height high (truncated, at least 0); every
 * piece is copied, not blended.
 */
BRIXEL_AUTOTEST_EXPORT QImage windowBackgroundPattern(const QImage &artwork, int mode, float height);

/// \a artwork stretched whole into an image of \a size.
BRIXEL_AUTOTEST_EXPORT QImage stretchedArtwork(const QImage &artwork, QSize size);

} // namespace BrixelPrivate
