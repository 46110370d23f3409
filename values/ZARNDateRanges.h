// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>
#include "../platform/ZARNCalendarDate.h"

/**
 * \file
 * Calendar arithmetic for date-range choosers: the start and end of common reporting periods
 * measured from now, and the number of days in a month.
 *
 * \code
 * ZARNCalendarDate start, end;
 * DateRangeForMnemonic(DateRangeMnemonicLastMonth, &start, &end);
 * // on 15 May 2024: 1 April 2024 00:00:00 to 30 April 2024 23:59:59
 * \endcode
 */

/// The reporting periods DateRangeForMnemonic() knows; the values are part of the interface.
enum DateRangeMnemonic : int {
    DateRangeMnemonicToday = 0,
    DateRangeMnemonicYesterday = 1,
    DateRangeMnemonicLastWeek = 2,
    DateRangeMnemonicLastMonth = 3,
    DateRangeMnemonicLastQuarter = 4,
    DateRangeMnemonicLastYear = 5,
    DateRangeMnemonicThisWeek = 6,
    DateRangeMnemonicThisMonth = 7,
    DateRangeMnemonicThisQuarter = 8,
    DateRangeMnemonicThisYear = 9,
    DateRangeMnemonicWeekToDate = 10,
    DateRangeMnemonicMonthToDate = 11,
    DateRangeMnemonicQuarterToDate = 12,
    DateRangeMnemonicYearToDate = 13,
};

namespace Brixel {

/**
 * Writes the first and the last second of the period \a mnemonic into \a outStart and
 * \a outEnd, in the default time zone, measured from ZARNClock's now.
 *
 * Weeks run from Sunday to Saturday; quarters begin in January, April, July and October.
 * Periods end at 23:59:59 of their last day, except that week to date ends at 00:00:00 of
 * today (intended: the other to-date periods end at 23:59:59 of today). "Last quarter" is the
 * quarter that holds the date three months ago.
 *
 * Either output may be nullptr; only the given ones are written, and the end of every period
 * is correct also when no start is asked for. A \a mnemonic outside 0 to 13 leaves both
 * outputs untouched.
 */
BRIXEL_EXPORT void DateRangeForMnemonic(int mnemonic, ZARNCalendarDate *outStart, ZARNCalendarDate *outEnd);

/**
 * The number of days of \a month (1 to 12) in \a year. Any other month value counts as
 * February. February has 29 days in every year divisible by 4, centuries included: 1900 and
 * 2100 give 29, unlike the Gregorian calendar of ZARNCalendarDate. This is intended.
 */
BRIXEL_EXPORT int DaysInMonth(int month, int year);

} // namespace Brixel
