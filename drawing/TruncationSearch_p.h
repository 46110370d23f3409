// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include "ZARNAttributedTextLayout.h"

#include <QString>
#include <QtGlobal>

#include <algorithm>
#include <memory>

class ZARNAttributedString;

namespace BrixelPrivate {

/// The measured width of \a string: its widest line, each line break ("\n", "\r", U+2028)
/// starting a new line.
BRIXEL_AUTOTEST_EXPORT float attributedStringWidth(const ZARNAttributedString &string);

/// Plain text shortened for drawing: the text, and its layout when the search laid it out.
struct ShortenedText
{
    QString text;
    std::unique_ptr<ZARNAttributedTextLayout> layout;
};

/**
 * Brixel::TruncateAttributedString() of plain \a text in one \a font, already laid out as
 * \a whole, with the shortened text's layout in \a color and \a alignment: the search lays
 * out every candidate it measures and keeps the one it settles on for drawing. It starts
 * where the starts of \a whole and \a dotsWidth, the width of "..." in the font, put the
 * cut, which is usually exact. Text that fits, and text of which not even "..." fits, come
 * back without a layout.
 */
BRIXEL_AUTOTEST_EXPORT ShortenedText shortenedPlainText(const QString &text, const QFont &font, const QColor &color,
                                                        Qt::Alignment alignment, float width,
                                                        const ZARNAttributedTextLayout &whole, qreal dotsWidth);

/**
 * The largest length from 0 to \a maxLength for which \a fits answers true, assuming that a
 * prefix that fits stays fitting when it is made shorter, apart from a character or two at
 * its end (kerning): lengths just above the boundary found are checked too. -1 when no
 * length fits. \a fits is called O(log n) times, mostly with short lengths.
 *
 * The search starts at \a guess (clamped to 0 .. \a maxLength) and moves away from it in
 * doubling steps, so a guess one or two characters off costs three or four calls.
 */
template<typename Fits>
qsizetype longestFittingLength(qsizetype maxLength, Fits &&fits, qsizetype guess = 0)
{
    return longestFittingLength(maxLength, fits, guess, [](qsizetype) { return false; });
}

/// The same, where \a surelyTooLong answers true for a length that is known not to fit
/// without measuring it: the search then takes it as too long without asking \a fits.
template<typename Fits, typename SurelyTooLong>
qsizetype longestFittingLength(qsizetype maxLength, Fits &&fits, qsizetype guess, SurelyTooLong &&surelyTooLong);

} // namespace BrixelPrivate

template<typename Fits, typename SurelyTooLong>
qsizetype BrixelPrivate::longestFittingLength(qsizetype maxLength, Fits &&fits, qsizetype guess,
                                              SurelyTooLong &&surelyTooLong)
{
    if (maxLength < 0)
        return -1;
    const auto measuredFit = [&](qsizetype length) { return !surelyTooLong(length) && fits(length); };
    qsizetype fitting = std::clamp<qsizetype>(guess, 0, maxLength);
    // Narrows [fitting, tooLong) down to the boundary; then a kerning pair at the cut may make
    // a longer prefix narrower, so one further is looked at: false when the search is done.
    const auto settle = [&](qsizetype tooLong) {
        while (tooLong - fitting > 1) {
            const qsizetype middle = fitting + (tooLong - fitting) / 2;
            (measuredFit(middle) ? fitting : tooLong) = middle;
        }
        if (tooLong + 1 > maxLength || !measuredFit(tooLong + 1))
            return false;
        fitting = tooLong + 1;
        return true;
    };
    if (!measuredFit(fitting)) {
        // Walk down from the guess to a length that fits.
        qsizetype tooLong = fitting;
        for (qsizetype step = 1;; step *= 2) {
            if (tooLong == 0)
                return -1;
            const qsizetype shorter = std::max<qsizetype>(tooLong - step, 0);
            if (measuredFit(shorter)) {
                fitting = shorter;
                break;
            }
            tooLong = shorter;
        }
        if (!settle(tooLong))
            return fitting;
    }
    for (;;) {
        // Grow from what fits: the answer is usually near, and short prefixes are cheap.
        qsizetype step = 1;
        while (step <= maxLength - fitting && measuredFit(fitting + step)) {
            fitting += step;
            step *= 2;
        }
        if (!settle(step <= maxLength - fitting ? fitting + step : maxLength + 1))
            return fitting;
    }
}
