// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QDateTime>
#include <QString>
#include <QTimeZone>

#include <optional>

/**
 * A moment shown in a time zone, with calendar fields (year, month, day, hour, minute, second,
 * day of the week), field-wise calendar arithmetic and the library's %-formats.
 *
 * \code
 * const ZARNCalendarDate now = ZARNCalendarDate::date();              // from ZARNClock
 * const ZARNCalendarDate firstOfMonth =
 *     ZARNCalendarDate::dateWithYear(now.yearOfCommonEra(), now.monthOfYear(), 1, 0, 0, 0);
 * const ZARNCalendarDate lastSecond = firstOfMonth.dateByAddingYears(0, 1, 0, 0, 0, -1);
 * lastSecond.descriptionWithCalendarFormat(u"%A %e %B %Y, %H:%M:%S"_s);
 * // "Friday 31 May 2024, 23:59:59"
 * \endcode
 *
 * The calendar is the proleptic Gregorian one. Wherever a time zone may be given, an invalid
 * QTimeZone (the default-constructed one) stands for the default time zone: the system's zone
 * unless setDefaultTimeZone() chose another. A date keeps the zone it was made in.
 *
 * Dates are kept within the years 1 to 9999 of their zone: anything earlier or later becomes
 * 1 January 1, 00:00:00.000 or 31 December 9999, 23:59:59.999 of that zone. Moments carry
 * milliseconds; the fields show whole seconds.
 *
 * A wall-clock time that a daylight-saving change skips moves forward by the length of the
 * skip (02:30 becomes 03:30 where clocks go from 02:00 to 03:00); of a time that a change
 * repeats, QDateTime chooses one.
 */
class BRIXEL_EXPORT ZARNCalendarDate
{
public:
    /// 1 January 1970, 00:00:00 UTC, shown in the default time zone.
    ZARNCalendarDate();

    /// Now, as ZARNClock::current() tells it, in the default time zone.
    static ZARNCalendarDate date();

    /**
     * The date with these fields in \a timeZone. Fields out of their range carry over as in
     * calendar addition: month 13 is January of the next year, month 0 December of the year
     * before, day 0 the last day of the month before, hour 24 midnight of the next day,
     * second -1 the last second of the minute before.
     */
    static ZARNCalendarDate dateWithYear(int year, int month, int day, int hour, int minute, int second,
                                         const QTimeZone &timeZone = QTimeZone());

    /// The moment \a seconds after 1970-01-01 00:00:00 UTC, to the nearest millisecond, in
    /// \a timeZone. NaN gives that origin itself; infinities and huge values the ends of the
    /// range.
    static ZARNCalendarDate dateWithTimeIntervalSince1970(double seconds, const QTimeZone &timeZone = QTimeZone());

    /// The moment of \a dateTime, in \a dateTime's own zone; an invalid one gives ZARNCalendarDate().
    static ZARNCalendarDate fromDateTime(const QDateTime &dateTime);

    /**
     * Parses \a string written in \a calendarFormat (the codes of
     * descriptionWithCalendarFormat()), in the default time zone. Returns std::nullopt when
     * the text does not match the format or names an impossible date or time.
     *
     * - Numbers take one digit up to their width (four for %Y, two for the others), with or
     *   without leading zeros, whichever of %m or %1m, %d or %e is used.
     * - %y takes a two-digit year: 00 to 68 are 2000 to 2068, 69 to 99 are 1969 to 1999.
     * - Month and weekday names are English, matched without regard to case; either the full
     *   name or its three-letter abbreviation is accepted for %b, %B, %a and %A. The weekday
     *   must be a weekday name but does not change the date.
     * - With %p, AM turns hour 12 into 0 and PM adds 12 to hours 1 to 11.
     * - White space in the format matches any run of white space, also none; other text must
     *   match exactly. White space before and after the text is ignored.
     * - Fields the format does not contain take the values of 1 January 1970, 00:00:00.
     *
     * \code
     * ZARNCalendarDate::dateWithString(u"5/15/24"_s, u"%1m/%e/%y"_s);   // 15 May 2024
     * ZARNCalendarDate::dateWithString(u"31/2/24"_s, u"%e/%1m/%y"_s);   // std::nullopt
     * \endcode
     */
    static std::optional<ZARNCalendarDate> dateWithString(const QString &string, const QString &calendarFormat);

    /// The zone used where none is given: the system's zone unless set.
    static QTimeZone defaultTimeZone();
    /// Makes \a timeZone the default zone for the process; an invalid zone restores the
    /// system's zone.
    static void setDefaultTimeZone(const QTimeZone &timeZone);

    /**
     * This date with the fields moved by the given amounts, in its own zone. Years and months
     * are added first; when the day does not exist in the month reached, it becomes that
     * month's last day (31 March minus one month is 29 February in a leap year). Then days,
     * hours, minutes and seconds are added to the wall-clock fields and carried over, so
     * adding a day across a daylight-saving change keeps the time of day, and
     * dateByAddingYears(0, 0, 1, -hour, -minute, -(second + 1)) is 23:59:59 of the same day.
     * The milliseconds are kept.
     */
    ZARNCalendarDate dateByAddingYears(int years, int months, int days, int hours, int minutes, int seconds) const;

    int yearOfCommonEra() const;
    /// 1 (January) to 12.
    int monthOfYear() const;
    /// 1 to 31.
    int dayOfMonth() const;
    /// 0 (Sunday) to 6 (Saturday).
    int dayOfWeek() const;
    int hourOfDay() const;
    int minuteOfHour() const;
    int secondOfMinute() const;
    QTimeZone timeZone() const;

    /// Seconds since 1970-01-01 00:00:00 UTC, with milliseconds.
    double timeIntervalSince1970() const;
    QDateTime toDateTime() const;

    /**
     * The date written in \a format, where
     * %Y is the year in four digits, %y its last two digits, %m the month in two digits, %1m
     * the month without a leading zero, %d the day in two digits, %e the day without a leading
     * zero, %H, %M and %S the hour (0 to 23), minute and second in two digits, %p AM or PM,
     * %b and %B the English month name abbreviated and in full, %a and %A the English weekday
     * name abbreviated and in full, and %% a percent sign. Any other % code, and a % at the
     * end, is written as it stands.
     */
    QString descriptionWithCalendarFormat(const QString &format) const;

    /// The same moment in the same zone.
    friend bool operator==(const ZARNCalendarDate &a, const ZARNCalendarDate &b)
    {
        return a.m_dateTime == b.m_dateTime && a.m_dateTime.timeZone() == b.m_dateTime.timeZone();
    }

private:
    explicit ZARNCalendarDate(const QDateTime &dateTime);

    QDateTime m_dateTime;
};
