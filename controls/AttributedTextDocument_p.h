// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QFont>
#include <QTextDocument>

#include <memory>

class ZARNAttributedString;
class QPainter;

namespace BrixelPrivate {

/**
 * \a text as a rich-text document that labels can measure and draw: each run's font and
 * foreground colour become its character format (\a font where a run has none), every
 * character carrying a QImage attachment becomes an inline image of that image's
 * device-independent size, and the horizontal part of \a alignment aligns every paragraph.
 * Glyphs are drawn without font smoothing. The document has no margin and wraps at its text
 * width only when \a wraps is set.
 */
BRIXEL_AUTOTEST_EXPORT std::unique_ptr<QTextDocument> attributedTextDocument(const ZARNAttributedString &text,
                                                                             const QFont &font,
                                                                             Qt::Alignment alignment, bool wraps);

/// Draws \a document at \a topLeft; characters without a colour of their own are black.
BRIXEL_AUTOTEST_EXPORT void drawTextDocument(QPainter &painter, const QTextDocument &document, QPointF topLeft);

} // namespace BrixelPrivate
