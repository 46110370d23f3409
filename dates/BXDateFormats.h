// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QLocale>
#include <QString>

namespace Brixel {

/**
 * \a format reduced to the shortest numeric calendar format with its fields in the same order:
 * day "%e", month "%1m" ("%m" with a system version code below 0x1030) and year "%y", joined
 * with "/". "%m/%d/%y" gives "%1m/%e/%y", "%d.%m.%Y" gives "%e/%1m/%y", "%Y-%m-%d" gives
 * "%y/%1m/%e".
 *
 * The fields are ordered by where the first letter of each kind stands anywhere in \a format,
 * literal text included ("bBm" for the month, "de" for the day, "yY" for the year; a missing
 * kind counts as standing at the end). Each element goes into one of three slots by fixed
 * rules, a later one (month, then day, then year) replacing an earlier one in the same slot,
 * so a format without any of the letters, or an empty one, gives "//%y".
 *
 * \code
 * const QString shortest = Brixel::DateFormatStringToShortestDateFormatString(u"%d.%m.%Y"_s);
 * const auto date = ZARNCalendarDate::dateWithString(u"5.3.07"_s.replace(u'.', u'/'), shortest);
 * \endcode
 */
BRIXEL_EXPORT QString DateFormatStringToShortestDateFormatString(const QString &format);

/**
 * The user's short date format: the user default "NSShortDateFormatString" (ZARNUserDefaults),
 * or, when it is not set, the locale's short date format turned into a %-format
 * (localeShortDateFormat()).
 */
BRIXEL_EXPORT QString userShortDateFormat();

/// \a locale's short date format as a %-format: Qt's "d"/"dd" become "%d", "M"/"MM" "%m",
/// "MMM" "%b", "MMMM" "%B", "yy" "%y" and "yyyy" "%Y" ("M/d/yy" becomes "%m/%d/%y").
BRIXEL_EXPORT QString localeShortDateFormat(const QLocale &locale = QLocale());

} // namespace Brixel
