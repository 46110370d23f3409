// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNCalendarDate.h"

#include "ZARNClock.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr qint64 MSecsPerDay = 86400000;
constexpr qint64 JulianDayOf1970 = 2440588;
constexpr int FirstYear = 1;
constexpr int LastYear = 9999;
// Far enough outside the supported years that day, hour and second offsets of 32-bit size
// cannot bring a clamped year back inside them, and small enough for 64-bit milliseconds.
constexpr qint64 YearLimit = 100000000;

qint64 floorDiv(qint64 a, qint64 b)
{
    return a / b - (a % b < 0 ? 1 : 0);
}

qint64 floorMod(qint64 a, qint64 b)
{
    return a - floorDiv(a, b) * b;
}

bool isGregorianLeapYear(qint64 year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int gregorianDaysInMonth(qint64 year, int month)
{
    static constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isGregorianLeapYear(year) ? 29 : days[month - 1];
}

// Days from 1970-01-01 to the first of `month` (1..12) of `year` in the proleptic Gregorian
// calendar, counted in 400-year eras so that any year in ±YearLimit works.
qint64 daysFromCivil(qint64 year, int month)
{
    year -= month <= 2 ? 1 : 0;
    const qint64 era = floorDiv(year, 400);
    const qint64 yearOfEra = year - era * 400;
    const qint64 dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5;
    const qint64 dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

QTimeZone resolved(const QTimeZone &timeZone)
{
    return timeZone.isValid() ? timeZone : ZARNCalendarDate::defaultTimeZone();
}

std::optional<QTimeZone> &chosenDefaultZone()
{
    static std::optional<QTimeZone> zone;
    return zone;
}

// Wall-clock fields, each of which may lie outside its range.
struct LocalFields {
    qint64 year;
    qint64 month;
    qint64 day;
    qint64 hour;
    qint64 minute;
    qint64 second;
    qint64 msec;
};

QDateTime fromLocalFields(const LocalFields &fields, const QTimeZone &zone)
{
    const qint64 monthIndex = fields.year * 12 + (fields.month - 1);
    const qint64 year = std::clamp(floorDiv(monthIndex, 12), -YearLimit, YearLimit);
    const int month = int(floorMod(monthIndex, 12)) + 1;
    const qint64 offset = ((((fields.day - 1) * 24 + fields.hour) * 60 + fields.minute) * 60 + fields.second) * 1000
        + fields.msec;
    static const qint64 first = daysFromCivil(FirstYear, 1) * MSecsPerDay;
    static const qint64 last = daysFromCivil(LastYear + 1, 1) * MSecsPerDay - 1;
    const qint64 local = std::clamp(daysFromCivil(year, month) * MSecsPerDay + offset, first, last);
    const QDateTime dateTime(QDate::fromJulianDay(floorDiv(local, MSecsPerDay) + JulianDayOf1970),
                             QTime::fromMSecsSinceStartOfDay(int(floorMod(local, MSecsPerDay))), zone);
    if (dateTime.isValid())
        return dateTime;
    // A wall-clock time that a daylight-saving change skips: read it with the offset in force
    // the day before, which moves it forward by the length of the skip.
    const int offsetBefore = zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(local - MSecsPerDay, QTimeZone::utc()));
    return QDateTime::fromMSecsSinceEpoch(local - offsetBefore * qint64(1000), zone);
}

// A moment given in milliseconds since 1970 (as a double, so that any value is allowed),
// clamped to the years of `zone` that dates support.
QDateTime clampedMoment(double msecs, const QTimeZone &zone)
{
    const double first = double(fromLocalFields({FirstYear, 1, 1, 0, 0, 0, 0}, zone).toMSecsSinceEpoch());
    const double last = double(fromLocalFields({LastYear, 12, 31, 23, 59, 59, 999}, zone).toMSecsSinceEpoch());
    const double clamped = std::isnan(msecs) ? 0.0 : std::clamp(msecs, first, last);
    return QDateTime::fromMSecsSinceEpoch(qint64(clamped), zone);
}

// The %-codes that dates are written and read with. Literal text includes "%%" (as "%"),
// unknown codes and a lone "%" at the end, all of which stand for themselves.
enum class Field {
    Literal,
    Year,
    ShortYear,
    Month,
    MonthNoZero,
    Day,
    DayNoZero,
    Hour,
    Minute,
    Second,
    AmPm,
    MonthAbbreviation,
    MonthName,
    WeekdayAbbreviation,
    WeekdayName,
};

struct Token {
    Field field;
    QStringView literal;
};

Token nextToken(QStringView format, qsizetype &position)
{
    const qsizetype start = position;
    if (format[start] != u'%') {
        position = format.indexOf(u'%', start);
        if (position < 0)
            position = format.size();
        return {Field::Literal, format.sliced(start, position - start)};
    }
    if (start + 1 == format.size()) {
        position = format.size();
        return {Field::Literal, format.sliced(start)};
    }
    position = start + 2;
    switch (format[start + 1].unicode()) {
    case u'Y': return {Field::Year, {}};
    case u'y': return {Field::ShortYear, {}};
    case u'm': return {Field::Month, {}};
    case u'd': return {Field::Day, {}};
    case u'e': return {Field::DayNoZero, {}};
    case u'H': return {Field::Hour, {}};
    case u'M': return {Field::Minute, {}};
    case u'S': return {Field::Second, {}};
    case u'p': return {Field::AmPm, {}};
    case u'b': return {Field::MonthAbbreviation, {}};
    case u'B': return {Field::MonthName, {}};
    case u'a': return {Field::WeekdayAbbreviation, {}};
    case u'A': return {Field::WeekdayName, {}};
    case u'%': return {Field::Literal, format.sliced(start + 1, 1)};
    case u'1':
        if (start + 2 < format.size() && format[start + 2] == u'm') {
            position = start + 3;
            return {Field::MonthNoZero, {}};
        }
        break;
    default:
        break;
    }
    return {Field::Literal, format.sliced(start, 2)};
}

constexpr std::array<QLatin1StringView, 12> MonthNames{
    QLatin1StringView("January"), QLatin1StringView("February"), QLatin1StringView("March"),
    QLatin1StringView("April"),   QLatin1StringView("May"),      QLatin1StringView("June"),
    QLatin1StringView("July"),    QLatin1StringView("August"),   QLatin1StringView("September"),
    QLatin1StringView("October"), QLatin1StringView("November"), QLatin1StringView("December")};

constexpr std::array<QLatin1StringView, 7> WeekdayNames{
    QLatin1StringView("Sunday"),   QLatin1StringView("Monday"), QLatin1StringView("Tuesday"),
    QLatin1StringView("Wednesday"), QLatin1StringView("Thursday"), QLatin1StringView("Friday"),
    QLatin1StringView("Saturday")};

QString twoDigits(int value)
{
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}

// Reads a date's text from left to right.
class TextCursor
{
public:
    explicit TextCursor(QStringView text) : m_text(text) { }

    bool atEnd() const { return m_position == m_text.size(); }

    void skipSpaces()
    {
        while (!atEnd() && m_text[m_position].isSpace())
            ++m_position;
    }

    // One to `maxDigits` ASCII digits.
    std::optional<int> number(int maxDigits)
    {
        int value = 0;
        int digits = 0;
        while (digits < maxDigits && !atEnd() && m_text[m_position] >= u'0' && m_text[m_position] <= u'9') {
            value = value * 10 + (m_text[m_position].unicode() - u'0');
            ++m_position;
            ++digits;
        }
        return digits > 0 ? std::optional<int>(value) : std::nullopt;
    }

    // Literal text; white space in it matches any run of white space.
    bool literal(QStringView text)
    {
        for (const QChar c : text) {
            if (c.isSpace()) {
                skipSpaces();
            } else if (!atEnd() && m_text[m_position] == c) {
                ++m_position;
            } else {
                return false;
            }
        }
        return true;
    }

    // The index of the name found here, full names tried before their abbreviations.
    template<std::size_t Count>
    std::optional<int> name(const std::array<QLatin1StringView, Count> &names)
    {
        const QStringView rest = m_text.sliced(m_position);
        for (const qsizetype length : {qsizetype(-1), qsizetype(3)}) {
            for (std::size_t i = 0; i < Count; ++i) {
                const QLatin1StringView candidate = length < 0 ? names[i] : names[i].first(length);
                if (rest.startsWith(candidate, Qt::CaseInsensitive)) {
                    m_position += candidate.size();
                    return int(i);
                }
            }
        }
        return std::nullopt;
    }

private:
    QStringView m_text;
    qsizetype m_position = 0;
};

struct ParsedFields {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    std::optional<bool> afternoon;
};

// Reads one token's worth of text into `fields`; false when the text does not match.
bool readToken(const Token &token, TextCursor &text, ParsedFields &fields)
{
    const auto store = [](std::optional<int> value, int &field) {
        if (value)
            field = *value;
        return value.has_value();
    };
    switch (token.field) {
    case Field::Literal:
        return text.literal(token.literal);
    case Field::Year:
        return store(text.number(4), fields.year);
    case Field::ShortYear: {
        const std::optional<int> year = text.number(2);
        if (year)
            fields.year = *year < 69 ? 2000 + *year : 1900 + *year;
        return year.has_value();
    }
    case Field::Month:
    case Field::MonthNoZero:
        return store(text.number(2), fields.month);
    case Field::Day:
    case Field::DayNoZero:
        return store(text.number(2), fields.day);
    case Field::Hour:
        return store(text.number(2), fields.hour);
    case Field::Minute:
        return store(text.number(2), fields.minute);
    case Field::Second:
        return store(text.number(2), fields.second);
    case Field::AmPm: {
        static constexpr std::array<QLatin1StringView, 2> markers{QLatin1StringView("AM"), QLatin1StringView("PM")};
        const std::optional<int> marker = text.name(markers);
        if (marker)
            fields.afternoon = *marker == 1;
        return marker.has_value();
    }
    case Field::MonthAbbreviation:
    case Field::MonthName: {
        const std::optional<int> month = text.name(MonthNames);
        if (month)
            fields.month = *month + 1;
        return month.has_value();
    }
    case Field::WeekdayAbbreviation:
    case Field::WeekdayName:
        return text.name(WeekdayNames).has_value();
    }
    return false;
}

} // namespace

ZARNCalendarDate::ZARNCalendarDate()
    : m_dateTime(QDateTime::fromMSecsSinceEpoch(0, defaultTimeZone()))
{
}

ZARNCalendarDate::ZARNCalendarDate(const QDateTime &dateTime)
    : m_dateTime(dateTime)
{
}

ZARNCalendarDate ZARNCalendarDate::date()
{
    return dateWithTimeIntervalSince1970(ZARNClock::current().now());
}

ZARNCalendarDate ZARNCalendarDate::dateWithYear(int year, int month, int day, int hour, int minute, int second,
                                                const QTimeZone &timeZone)
{
    return ZARNCalendarDate(fromLocalFields({year, month, day, hour, minute, second, 0}, resolved(timeZone)));
}

ZARNCalendarDate ZARNCalendarDate::dateWithTimeIntervalSince1970(double seconds, const QTimeZone &timeZone)
{
    return ZARNCalendarDate(clampedMoment(std::round(seconds * 1000.0), resolved(timeZone)));
}

ZARNCalendarDate ZARNCalendarDate::fromDateTime(const QDateTime &dateTime)
{
    if (!dateTime.isValid())
        return ZARNCalendarDate();
    return ZARNCalendarDate(clampedMoment(double(dateTime.toMSecsSinceEpoch()), dateTime.timeZone()));
}

std::optional<ZARNCalendarDate> ZARNCalendarDate::dateWithString(const QString &string, const QString &calendarFormat)
{
    ParsedFields fields;
    TextCursor text(string);
    text.skipSpaces();
    for (qsizetype position = 0; position < calendarFormat.size();) {
        if (!readToken(nextToken(calendarFormat, position), text, fields))
            return std::nullopt;
    }
    text.skipSpaces();
    if (!text.atEnd())
        return std::nullopt;
    if (fields.afternoon) {
        if (*fields.afternoon && fields.hour >= 1 && fields.hour <= 11)
            fields.hour += 12;
        else if (!*fields.afternoon && fields.hour == 12)
            fields.hour = 0;
    }
    if (fields.year < FirstYear || fields.year > LastYear || !QDate::isValid(fields.year, fields.month, fields.day)
        || !QTime::isValid(fields.hour, fields.minute, fields.second)) {
        return std::nullopt;
    }
    return dateWithYear(fields.year, fields.month, fields.day, fields.hour, fields.minute, fields.second);
}

QTimeZone ZARNCalendarDate::defaultTimeZone()
{
    const std::optional<QTimeZone> &chosen = chosenDefaultZone();
    return chosen ? *chosen : QTimeZone::systemTimeZone();
}

void ZARNCalendarDate::setDefaultTimeZone(const QTimeZone &timeZone)
{
    chosenDefaultZone() = timeZone.isValid() ? std::optional<QTimeZone>(timeZone) : std::nullopt;
}

ZARNCalendarDate ZARNCalendarDate::dateByAddingYears(int years, int months, int days, int hours, int minutes,
                                                     int seconds) const
{
    const QDate date = m_dateTime.date();
    const QTime time = m_dateTime.time();
    const qint64 monthIndex = qint64(date.year()) * 12 + (date.month() - 1) + qint64(years) * 12 + months;
    const qint64 year = floorDiv(monthIndex, 12);
    const int month = int(floorMod(monthIndex, 12)) + 1;
    const int day = std::min(date.day(), gregorianDaysInMonth(year, month));
    return ZARNCalendarDate(fromLocalFields({year, month, qint64(day) + days, qint64(time.hour()) + hours,
                                             qint64(time.minute()) + minutes, qint64(time.second()) + seconds,
                                             time.msec()},
                                            m_dateTime.timeZone()));
}

int ZARNCalendarDate::yearOfCommonEra() const
{
    return m_dateTime.date().year();
}

int ZARNCalendarDate::monthOfYear() const
{
    return m_dateTime.date().month();
}

int ZARNCalendarDate::dayOfMonth() const
{
    return m_dateTime.date().day();
}

int ZARNCalendarDate::dayOfWeek() const
{
    return m_dateTime.date().dayOfWeek() % 7;
}

int ZARNCalendarDate::hourOfDay() const
{
    return m_dateTime.time().hour();
}

int ZARNCalendarDate::minuteOfHour() const
{
    return m_dateTime.time().minute();
}

int ZARNCalendarDate::secondOfMinute() const
{
    return m_dateTime.time().second();
}

QTimeZone ZARNCalendarDate::timeZone() const
{
    return m_dateTime.timeZone();
}

double ZARNCalendarDate::timeIntervalSince1970() const
{
    return double(m_dateTime.toMSecsSinceEpoch()) / 1000.0;
}

QDateTime ZARNCalendarDate::toDateTime() const
{
    return m_dateTime;
}

QString ZARNCalendarDate::descriptionWithCalendarFormat(const QString &format) const
{
    const int hour = hourOfDay();
    QString text;
    for (qsizetype position = 0; position < format.size();) {
        const Token token = nextToken(format, position);
        switch (token.field) {
        case Field::Literal: text += token.literal; break;
        case Field::Year: text += QStringLiteral("%1").arg(yearOfCommonEra(), 4, 10, QLatin1Char('0')); break;
        case Field::ShortYear: text += twoDigits(yearOfCommonEra() % 100); break;
        case Field::Month: text += twoDigits(monthOfYear()); break;
        case Field::MonthNoZero: text += QString::number(monthOfYear()); break;
        case Field::Day: text += twoDigits(dayOfMonth()); break;
        case Field::DayNoZero: text += QString::number(dayOfMonth()); break;
        case Field::Hour: text += twoDigits(hour); break;
        case Field::Minute: text += twoDigits(minuteOfHour()); break;
        case Field::Second: text += twoDigits(secondOfMinute()); break;
        case Field::AmPm: text += hour < 12 ? QLatin1StringView("AM") : QLatin1StringView("PM"); break;
        case Field::MonthAbbreviation: text += MonthNames[monthOfYear() - 1].first(3); break;
        case Field::MonthName: text += MonthNames[monthOfYear() - 1]; break;
        case Field::WeekdayAbbreviation: text += WeekdayNames[dayOfWeek()].first(3); break;
        case Field::WeekdayName: text += WeekdayNames[dayOfWeek()]; break;
        }
    }
    return text;
}
