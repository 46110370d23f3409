// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNAttributedTextLayout.h"
#include <Brixel/brixel_export.h>

#include <QRectF>

class QPainter;

/**
 * \file
 * Drawing attributed text: fonts and colours from the runs, each paragraph aligned by its
 * ZARNParagraphAlignmentAttributeName, and the ZARNShadowAttributeName shadow painted under
 * the glyphs. Text is measured and laid out exactly as the truncation and height functions of
 * ZARNTextTruncation.h measure it, so text shortened or measured there fits when drawn here.
 *
 * \code
 * Brixel::drawAttributedString(painter, message, messageRect);               // wrapped
 * Brixel::drawAttributedString(painter, title, titleRect, false, false);     // one line, aliased
 * \endcode
 *
 * Characters without a font use the application font; without a colour they are black. A
 * shadow's offset {w, h} counts y upward, as every ZARNShadow does, so {0, -1} lands one
 * pixel below the glyphs. Its blur radius is approximated: the shadow is drawn sharp, since
 * the blurs the library uses (one point) do not reach beyond the next pixel.
 *
 * Like all text measuring in Qt, this needs a QGuiApplication and runs in the GUI thread.
 */

namespace Brixel {

/**
 * Draws \a string in \a rect: ZARNAttributedTextLayout(string, rect.width(), wraps,
 * antialiased).draw(painter, rect). Text too wide for the rectangle without \a wraps, or too
 * tall for it, is not shortened: use TruncateAttributedString() or
 * ZARNAttributedStringHeightForWidth() to make it fit.
 */
BRIXEL_EXPORT void drawAttributedString(QPainter &painter, const ZARNAttributedString &string, const QRectF &rect,
                                        bool wraps = true, bool antialiased = true);

} // namespace Brixel
