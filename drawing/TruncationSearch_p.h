// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QtGlobal>

#include <algorithm>

class ZARNAttributedString;

namespace BrixelPrivate {

/// The measured width of \a string: its widest line, each line break ("\n", "\r", U+2028)
/// starting a new line.
BRIXEL_AUTOTEST_EXPORT float attributedStringWidth(const ZARNAttributedString &string);

/// Brixel::TruncateAttributedString() of a \a string whose attributedStringWidth() is already
/// known to be \a measuredWidth, which saves measuring it again.
BRIXEL_AUTOTEST_EXPORT ZARNAttributedString truncateMeasuredString(const ZARNAttributedString &string, float width,
                                                                   float measuredWidth);

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
qsizetype longestFittingLength(qsizetype maxLength, Fits &&fits, qsizetype guess = 0);

} // namespace BrixelPrivate

template<typename Fits>
qsizetype BrixelPrivate::longestFittingLength(qsizetype maxLength, Fits &&fits, qsizetype guess)
{
    if (maxLength < 0)
        return -1;
    qsizetype fitting = std::clamp<qsizetype>(guess, 0, maxLength);
    // Narrows [fitting, tooLong) down to the boundary; then a kerning pair at the cut may make
    // a longer prefix narrower, so one further is looked at: false when the search is done.
    const auto settle = [&](qsizetype tooLong) {
        while (tooLong - fitting > 1) {
            const qsizetype middle = fitting + (tooLong - fitting) / 2;
            (fits(middle) ? fitting : tooLong) = middle;
        }
        if (tooLong + 1 > maxLength || !fits(tooLong + 1))
            return false;
        fitting = tooLong + 1;
        return true;
    };
    if (!fits(fitting)) {
        // Walk down from the guess to a length that fits.
        qsizetype tooLong = fitting;
        for (qsizetype step = 1;; step *= 2) {
            if (tooLong == 0)
                return -1;
            const qsizetype shorter = std::max<qsizetype>(tooLong - step, 0);
            if (fits(shorter)) {
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
        while (step <= maxLength - fitting && fits(fitting + step)) {
            fitting += step;
            step *= 2;
        }
        if (!settle(step <= maxLength - fitting ? fitting + step : maxLength + 1))
            return fitting;
    }
}
