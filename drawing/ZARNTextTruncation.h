// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/ZARNAttributedString.h>
#include <Brixel/brixel_export.h>

#include <QString>
#include <QVariantMap>

class QLabel;
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
 * measurements of short prefixes instead of one per character.
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

/**
 * Shortens \a label's text in place so that it fits \a width in the label's font: the
 * longest start of the text followed by "..." that fits. Text that already fits is left
 * untouched; a null label does nothing.
 *
 * \throws std::out_of_range when even "..." alone does not fit; the label then shows "...".
 * Pass a width that holds "..." plus the margin.
 */
BRIXEL_EXPORT void TruncateStringInCell(QLabel *label, float width);

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

namespace brixel {

/// The measured width of \a string: its widest line, each line break ("\n", "\r", U+2028)
/// starting a new line.
BRIXEL_EXPORT float attributedStringWidth(const ZARNAttributedString &string);

/**
 * The largest length from 0 to \a maxLength for which \a fits answers true, assuming that a
 * prefix that fits stays fitting when it is made shorter, apart from a character or two at
 * its end (kerning): lengths just above the boundary found are checked too. -1 when no
 * length fits. \a fits is called O(log n) times, mostly with short lengths.
 */
template<typename Fits>
qsizetype longestFittingLength(qsizetype maxLength, Fits &&fits);

} // namespace brixel

template<typename Fits>
qsizetype brixel::longestFittingLength(qsizetype maxLength, Fits &&fits)
{
    if (maxLength < 0 || !fits(0))
        return -1;
    qsizetype fitting = 0;
    for (;;) {
        // Grow from the short end: the answer is usually short, and short prefixes are cheap.
        qsizetype step = 1;
        while (step <= maxLength - fitting && fits(fitting + step)) {
            fitting += step;
            step *= 2;
        }
        qsizetype tooLong = step <= maxLength - fitting ? fitting + step : maxLength + 1;
        while (tooLong - fitting > 1) {
            const qsizetype middle = fitting + (tooLong - fitting) / 2;
            (fits(middle) ? fitting : tooLong) = middle;
        }
        // A kerning pair at the cut can make a longer prefix narrower; look one further.
        if (tooLong + 1 > maxLength || !fits(tooLong + 1))
            return fitting;
        fitting = tooLong + 1;
    }
}
