// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QtGlobal>

class ZARNAttributedString;

namespace BrixelPrivate {

/// The measured width of \a string: its widest line, each line break ("\n", "\r", U+2028)
/// starting a new line.
BRIXEL_AUTOTEST_EXPORT float attributedStringWidth(const ZARNAttributedString &string);

/**
 * The largest length from 0 to \a maxLength for which \a fits answers true, assuming that a
 * prefix that fits stays fitting when it is made shorter, apart from a character or two at
 * its end (kerning): lengths just above the boundary found are checked too. -1 when no
 * length fits. \a fits is called O(log n) times, mostly with short lengths.
 */
template<typename Fits>
qsizetype longestFittingLength(qsizetype maxLength, Fits &&fits);

} // namespace BrixelPrivate

template<typename Fits>
qsizetype BrixelPrivate::longestFittingLength(qsizetype maxLength, Fits &&fits)
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
