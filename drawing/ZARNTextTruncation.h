// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNAttributedString.h"
#include <Brixel/brixel_export.h>

#include <QString>
#include <QVariantMap>

class QStandardItem;

/**
 * \file
 * Shortening text with a trailing "..." (three full stops) until it fits a width, and
 * measuring the height of wrapped attributed text.
 *
 * Text fits a width when its measured width is at most the width minus a fixed margin of 4.0
 * points; text exactly at the limit fits. A string's width is that of its widest line laid
 * out with QTextLayout in its attributes' fonts (the application font where it has none).
 *
 * Shortening drops characters from the end and puts "..." after what is left, keeping the
 * longest start of the text that fits together with the dots. The result is exactly what
 * dropping one character at a time and measuring after each step gives, but found with a few
 * measurements of short prefixes instead of one per character. Whether long text fits at all
 * is settled by a start of it where that start is already too wide, so the rest of the text
 * is not laid out.
 *
 * \code
 * TruncateStringInCell(fileNameLabel, fileNameLabel->width());
 * const ZARNAttributedString shown = TruncateAttributedString(title, 200);
 * const float height = ZARNAttributedStringHeightForWidth(message, viewport.width());
 * \endcode
 *
 * All of these measure with Qt's text layout, so they need a QGuiApplication and run in the
 * GUI thread.
 */

/// The margin every truncation keeps: text must measure at most width - 4.0 points.
inline constexpr double ZARNTruncationMargin = 4.0;

namespace Brixel {

/**
 * Shortens \a text in place so that it fits \a width when drawn with \a attributes (font and
 * colour, see ZARNAttributedString): the longest start of the text followed by "..." that
 * fits. Text that already fits is left untouched; a null \a text does nothing. The cells of
 * the other layers (labels, model items) shorten their text through this.
 *
 * \throws std::out_of_range when even "..." alone does not fit; \a text is then "...".
 * Pass a width that holds "..." plus the margin.
 */
BRIXEL_EXPORT void TruncateStringInCell(QString *text, const QVariantMap &attributes, float width);

/// The same for a model item, measured in the item's font (see QStandardItem::font()).
BRIXEL_EXPORT void TruncateStringInCell(QStandardItem *item, float width);

/**
 * A copy of \a string shortened to fit \a width. Text that fits comes back unchanged.
 * Otherwise the last character always gives way to "..." first, and the dots take that
 * character's attributes (font, colour); then characters before the dots are removed one at a
 * time until the text fits or only "..." is left, which is returned even if it is still too
 * wide.
 *
 * \throws std::out_of_range for an empty string with a width below the margin, which has no
 * last character to take attributes from.
 */
BRIXEL_EXPORT ZARNAttributedString TruncateAttributedString(const ZARNAttributedString &string, float width);

/// TruncateAttributedString() for \a string with \a attributes on every character, as plain
/// text. A null string gives a null string.
BRIXEL_EXPORT QString TruncateStringWithAttributes(const QString &string, const QVariantMap &attributes, float width);

/**
 * The height \a string needs when wrapped at word boundaries to \a width points, without
 * padding: the sum of its lines' heights (leading included), counting only lines that fit in
 * a height of 10000 points, so taller text measures at most 10000. The same string and width
 * always give the same height. An empty string measures 0; a width that is not positive (or
 * NaN) wraps after every character.
 */
BRIXEL_EXPORT float ZARNAttributedStringHeightForWidth(const ZARNAttributedString &string, float width);

} // namespace Brixel
