// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNDateRanges.h"

namespace {

ZARNCalendarDate atTime(const ZARNCalendarDate &date, int hour, int minute, int second)
{
    return ZARNCalendarDate::dateWithYear(date.yearOfCommonEra(), date.monthOfYear(), date.dayOfMonth(), hour,
                                          minute, second);
}

ZARNCalendarDate addingDays(const ZARNCalendarDate &date, int days)
{
    return date.dateByAddingYears(0, 0, days, 0, 0, 0);
}

// Today 23:59:59, reached from now by field arithmetic.
ZARNCalendarDate endOfToday(const ZARNCalendarDate &now)
{
    return now.dateByAddingYears(0, 0, 1, -now.hourOfDay(), -now.minuteOfHour(), -(now.secondOfMinute() + 1));
}

struct Range {
    ZARNCalendarDate start;
    ZARNCalendarDate end;
};

Range weekRange(int mnemonic, const ZARNCalendarDate &now)
{
    // Counting the days back from noon rather than midnight is intended.
    const ZARNCalendarDate noon = atTime(now, 12, 0, 0);
    const int back = (mnemonic == DateRangeMnemonicLastWeek ? -7 : 0) - noon.dayOfWeek();
    const ZARNCalendarDate start = atTime(addingDays(noon, back), 0, 0, 0);
    switch (mnemonic) {
    case DateRangeMnemonicLastWeek:
        return {start, start.dateByAddingYears(0, 0, 6, 23, 59, 59)};
    case DateRangeMnemonicThisWeek:
        return {start, start.dateByAddingYears(0, 0, 7, 0, 0, -1)};
    default:
        return {start, atTime(ZARNCalendarDate::date(), 0, 0, 0)};
    }
}

// Months, quarters and years, `back` and `length` counted in months: the period of `length`
// months (aligned on the year) that holds now + `back` months. `toDate` ends it today instead.
Range periodRange(const ZARNCalendarDate &now, int back, int length, bool toDate)
{
    const ZARNCalendarDate date = now.dateByAddingYears(0, back, 0, 0, 0, 0);
    const int firstMonth = (date.monthOfYear() - 1) / length * length + 1;
    const ZARNCalendarDate start = ZARNCalendarDate::dateWithYear(date.yearOfCommonEra(), firstMonth, 1, 0, 0, 0);
    return {start, toDate ? endOfToday(now) : start.dateByAddingYears(0, length, 0, 0, 0, -1)};
}

Range rangeForMnemonic(int mnemonic, const ZARNCalendarDate &now)
{
    switch (mnemonic) {
    case DateRangeMnemonicToday:
        return {atTime(now, 0, 0, 0), atTime(now, 23, 59, 59)};
    case DateRangeMnemonicYesterday: {
        const ZARNCalendarDate yesterday = addingDays(now, -1);
        return {atTime(yesterday, 0, 0, 0), atTime(yesterday, 23, 59, 59)};
    }
    case DateRangeMnemonicLastWeek:
    case DateRangeMnemonicThisWeek:
    case DateRangeMnemonicWeekToDate:
        return weekRange(mnemonic, now);
    case DateRangeMnemonicLastMonth:
        return periodRange(now, -1, 1, false);
    case DateRangeMnemonicThisMonth:
        return periodRange(now, 0, 1, false);
    case DateRangeMnemonicMonthToDate:
        return periodRange(now, 0, 1, true);
    case DateRangeMnemonicLastQuarter:
        return periodRange(now, -3, 3, false);
    case DateRangeMnemonicThisQuarter:
        return periodRange(now, 0, 3, false);
    case DateRangeMnemonicQuarterToDate:
        return periodRange(now, 0, 3, true);
    case DateRangeMnemonicLastYear:
        return periodRange(now, -12, 12, false);
    case DateRangeMnemonicThisYear:
        return periodRange(now, 0, 12, false);
    default:
        return periodRange(now, 0, 12, true);
    }
}

} // namespace

void Brixel::DateRangeForMnemonic(int mnemonic, ZARNCalendarDate *outStart, ZARNCalendarDate *outEnd)
{
    if (quint32(mnemonic) > quint32(DateRangeMnemonicYearToDate))
        return;
    const Range range = rangeForMnemonic(mnemonic, ZARNCalendarDate::date());
    if (outStart)
        *outStart = range.start;
    if (outEnd)
        *outEnd = range.end;
}

int Brixel::DaysInMonth(int month, int year)
{
    switch (month) {
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    case 1:
    case 3:
    case 5:
    case 7:
    case 8:
    case 10:
    case 12:
        return 31;
    default:
        // Every fourth year is a leap year, centuries included; intended.
        return year % 4 == 0 ? 29 : 28;
    }
}
