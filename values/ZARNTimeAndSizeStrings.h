// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>
#include <QtGlobal>

/**
 * \file
 * Short display text for durations and file sizes, and rounding to a multiple.
 *
 * Whole numbers of seconds are taken by truncating toward zero to a 32-bit signed integer;
 * NaN, the infinities and values outside -2147483648..2147483647 become -2147483648 and are
 * used as that number.
 */

namespace Brixel {

/**
 * A spelled-out duration: "2 days, 3 hours, 5 minutes", "1 minute, 1 second", "45 seconds".
 *
 * Shows days, hours and minutes; seconds only when there are no days (so a duration of a
 * day or more never shows seconds). A count of 1 takes the singular word, more the plural,
 * 0 or less nothing. The unit words ("day", "days", "hour", "hours", "minute", "minutes",
 * "second", "seconds") go through ZARNLocalizedString(), so ZARNLoadTranslations() or the
 * application's own translator changes them.
 *
 * Durations below one second, negative ones, NaN and the infinities give "--:--:--:--".
 *
 * \code
 * ZARNLongStringForTimeInterval(3725.0);   // "1 hour, 2 minutes, 5 seconds"
 * ZARNLongStringForTimeInterval(90061.0);  // "1 day, 1 hour, 1 minute"
 * \endcode
 */
BRIXEL_EXPORT QString ZARNLongStringForTimeInterval(double interval);

/**
 * A clock-style duration "hh:mm:ss": 3725.5 gives "01:02:05", 5 gives "00:00:05". Hours are
 * not limited to 24 (360000 gives "100:00:00"); the fraction of a second is dropped.
 *
 * Each field shorter than two characters gets a leading "0", negative ones too, so -5 gives
 * "00:00:0-5". NaN and the infinities give "0-596523:0-14:-2147483648".
 */
BRIXEL_EXPORT QString TimeIntervalDescription(double interval);

/**
 * A file size with binary units and one decimal: "1023 bytes", "1.0KB", "1024.0KB" (for
 * 1048575), "1.0MB", "1.5GB". The size passes through a single-precision float before it is
 * divided, so very large sizes show the float's rounding. Sizes of 0 and 1 show "0 bytes"
 * and "1 bytes". Decimals are rounded as C's "%.1f" rounds (1280 bytes give "1.2KB").
 */
BRIXEL_EXPORT QString StringForFileSize(quint64 size);

/**
 * \a value rounded to a multiple of \a increment, halves up: (11, 5) gives 10, (15, 10)
 * gives 20. The remainder has the sign of \a value and is compared with \a increment / 2
 * truncated, so an odd increment already rounds up at that remainder ((12, 5) gives 15) and
 * a negative value rounds toward zero for a positive increment ((-8, 5) gives -5).
 *
 * An increment of 0 returns \a value unchanged. A result beyond the int range wraps around
 * as 32-bit arithmetic does (INT_MAX with increment 10 gives -2147483646).
 */
BRIXEL_EXPORT int ZARNRoundToNearestIncrement(int value, int increment);

} // namespace Brixel
