// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNCalendarDate.h>
#include <Brixel/ZARNClock.h>

#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int IntMin = std::numeric_limits<int>::min();
constexpr int IntMax = std::numeric_limits<int>::max();

// The zone the tests run in: fixed, and not UTC, so that mixing up local and UTC shows.
const QTimeZone TestZone(-5 * 3600);

QString fields(const ZARNCalendarDate &date)
{
    return date.descriptionWithCalendarFormat(u"%a %Y-%m-%d %H:%M:%S"_s);
}

ZARNCalendarDate at(const QString &isoLocal, const QTimeZone &zone = QTimeZone())
{
    const QDateTime local = QDateTime::fromString(isoLocal, Qt::ISODate);
    return ZARNCalendarDate::dateWithYear(local.date().year(), local.date().month(), local.date().day(),
                                          local.time().hour(), local.time().minute(), local.time().second(), zone);
}

class FixedClock : public ZARNClock
{
public:
    double now() const override { return 1715783420.25; } // Wed 2024-05-15 14:30:20.25 UTC
};

} // namespace

class TestCalendarDate : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { ZARNCalendarDate::setDefaultTimeZone(TestZone); }
    void cleanupTestCase() { ZARNCalendarDate::setDefaultTimeZone(QTimeZone()); }
    void arithmetic_data();
    void arithmetic();
    void followsDaylightSaving();
    void formats_data();
    void formats();
    void parses_data();
    void parses();
    void converts();
};

void TestCalendarDate::arithmetic_data()
{
    QTest::addColumn<QList<int>>("given"); // year, month, day, hour, minute, second
    QTest::addColumn<QList<int>>("added");
    QTest::addColumn<QString>("expected");

    const QList<int> none{0, 0, 0, 0, 0, 0};
    const QList<int> minimum{IntMin, IntMin, IntMin, IntMin, IntMin, IntMin};
    const QList<int> maximum{IntMax, IntMax, IntMax, IntMax, IntMax, IntMax};
    QTest::newRow("month 13 is January of the next year") << QList{2024, 13, 1, 0, 0, 0} << none << u"Wed 2025-01-01 00:00:00"_s;
    QTest::newRow("day 0 is the last day of the month before") << QList{2024, 3, 0, 0, 0, 0} << none << u"Thu 2024-02-29 00:00:00"_s;
    QTest::newRow("30 February runs into March") << QList{2023, 2, 30, 0, 0, 0} << none << u"Thu 2023-03-02 00:00:00"_s;
    QTest::newRow("centuries follow the Gregorian rule") << QList{2100, 3, 0, 0, 0, 0} << none << u"Sun 2100-02-28 00:00:00"_s;
    QTest::newRow("a month back in a century year") << QList{2100, 3, 31, 0, 0, 0} << QList{0, -1, 0, 0, 0, 0} << u"Sun 2100-02-28 00:00:00"_s;
    QTest::newRow("before 1970") << QList{1969, 12, 31, 12, 0, 0} << none << u"Wed 1969-12-31 12:00:00"_s;
    QTest::newRow("second -1 is the second before") << QList{2024, 1, 1, 0, 0, -1} << none << u"Sun 2023-12-31 23:59:59"_s;
    QTest::newRow("fields at the minimum clamp") << minimum << none << u"Mon 0001-01-01 00:00:00"_s;
    QTest::newRow("fields at the maximum clamp") << maximum << none << u"Fri 9999-12-31 23:59:59"_s;
    QTest::newRow("31 March minus a month is 29 February") << QList{2024, 3, 31, 12, 0, 0} << QList{0, -1, 0, 0, 0, 0} << u"Thu 2024-02-29 12:00:00"_s;
    QTest::newRow("the day is clamped before days are added") << QList{2024, 3, 31, 0, 0, 0} << QList{0, -1, 1, 0, 0, 0} << u"Fri 2024-03-01 00:00:00"_s;
    QTest::newRow("a year later") << QList{2024, 5, 15, 0, 0, 0} << QList{1, 0, 0, 0, 0, 0}
                                  << u"Thu 2025-05-15 00:00:00"_s;
    QTest::newRow("the end of today from its fields") << QList{2024, 5, 15, 14, 30, 20} << QList{0, 0, 1, -14, -30, -21} << u"Wed 2024-05-15 23:59:59"_s;
    QTest::newRow("huge amounts clamp") << QList{2024, 5, 15, 0, 0, 0} << maximum << u"Fri 9999-12-31 23:59:59"_s;
    QTest::newRow("huge negative amounts clamp") << QList{2024, 5, 15, 0, 0, 0} << minimum << u"Mon 0001-01-01 00:00:00"_s;
}

void TestCalendarDate::arithmetic()
{
    QFETCH(QList<int>, given);
    QFETCH(QList<int>, added);
    QFETCH(QString, expected);
    const ZARNCalendarDate date = ZARNCalendarDate::dateWithYear(given[0], given[1], given[2], given[3], given[4], given[5])
                                      .dateByAddingYears(added[0], added[1], added[2], added[3], added[4], added[5]);
    QCOMPARE(fields(date), expected);
    QCOMPARE(date.timeZone(), TestZone);
}

void TestCalendarDate::followsDaylightSaving()
{
    const QTimeZone zone("Europe/Berlin");
    if (!zone.isValid())
        QSKIP("no time zone data for Europe/Berlin");
    // Clocks go from 02:00 to 03:00 on 31 March 2024.
    const ZARNCalendarDate before = at(u"2024-03-30T12:00:00"_s, zone);
    const ZARNCalendarDate after = before.dateByAddingYears(0, 0, 1, 0, 0, 0);
    QCOMPARE(fields(after), u"Sun 2024-03-31 12:00:00"_s);
    QCOMPARE(after.timeIntervalSince1970() - before.timeIntervalSince1970(), 23 * 3600.0);

    QCOMPARE(fields(at(u"2024-03-31T02:30:00"_s, zone)), u"Sun 2024-03-31 03:30:00"_s); // skipped
    const ZARNCalendarDate now = at(u"2024-03-31T14:30:20"_s, zone);
    const ZARNCalendarDate endOfDay = now.dateByAddingYears(0, 0, 1, -14, -30, -21);
    QCOMPARE(fields(endOfDay), u"Sun 2024-03-31 23:59:59"_s);
    QCOMPARE(endOfDay.toDateTime().offsetFromUtc(), 2 * 3600);
}

void TestCalendarDate::formats_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("expected");

    QTest::newRow("numeric") << u"2024-05-15T14:30:20"_s << u"%Y-%m-%d %H:%M:%S %p"_s << u"2024-05-15 14:30:20 PM"_s;
    QTest::newRow("without leading zeros") << u"2007-03-05T09:05:07"_s << u"%1m/%e/%y %H:%M:%S"_s << u"3/5/07 09:05:07"_s;
    QTest::newRow("names") << u"2024-05-15T14:30:20"_s << u"%A, %B %e (%a %b)"_s << u"Wednesday, May 15 (Wed May)"_s;
    QTest::newRow("short years keep four digits") << u"0033-01-01T00:00:00"_s << u"%Y %y"_s << u"0033 33"_s;
    QTest::newRow("percent, unknown codes and a trailing percent") << u"2024-05-15T00:00:00"_s
        << u"100%% %Q %1d %"_s << u"100% %Q %1d %"_s;
}

void TestCalendarDate::formats()
{
    QFETCH(QString, date);
    QFETCH(QString, format);
    QFETCH(QString, expected);
    QCOMPARE(at(date).descriptionWithCalendarFormat(format), expected);
}

void TestCalendarDate::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("expected"); // empty: does not parse

    QTest::newRow("leading zeros for codes without them") << u"05/05/2024"_s << u"%1m/%e/%Y"_s << u"Sun 2024-05-05 00:00:00"_s;
    QTest::newRow("names in any case") << u"wednesday, MAY 15 2024"_s << u"%A, %B %e %Y"_s << u"Wed 2024-05-15 00:00:00"_s;
    QTest::newRow("abbreviations for full names") << u"Wed May 15 2024"_s << u"%A %B %e %Y"_s << u"Wed 2024-05-15 00:00:00"_s;
    QTest::newRow("the weekday does not move the date") << u"Mon 15.5.2024"_s << u"%a %d.%m.%Y"_s << u"Wed 2024-05-15 00:00:00"_s;
    QTest::newRow("PM adds twelve hours") << u"2:30:20 PM 15.5.2024"_s << u"%H:%M:%S %p %d.%m.%Y"_s << u"Wed 2024-05-15 14:30:20"_s;
    QTest::newRow("PM leaves afternoon hours") << u"14:30 PM"_s << u"%H:%M %p"_s << u"Thu 1970-01-01 14:30:00"_s;
    QTest::newRow("12 AM is midnight") << u"12:05 am 1/1/2000"_s << u"%H:%M %p %1m/%e/%Y"_s << u"Sat 2000-01-01 00:05:00"_s;
    QTest::newRow("two-digit years up to 68 are this century") << u"1/1/68"_s << u"%1m/%e/%y"_s << u"Sun 2068-01-01 00:00:00"_s;
    QTest::newRow("two-digit years from 69 are the last") << u"1/1/69"_s << u"%1m/%e/%y"_s << u"Wed 1969-01-01 00:00:00"_s;
    QTest::newRow("missing fields come from 1 January 1970") << u"14:30"_s << u"%H:%M"_s << u"Thu 1970-01-01 14:30:00"_s;
    QTest::newRow("white space is loose") << u"  5 /15/ 24 "_s << u"%1m / %e / %y"_s << u"Wed 2024-05-15 00:00:00"_s;
    QTest::newRow("percent sign") << u"10%"_s << u"%d%%"_s << u"Sat 1970-01-10 00:00:00"_s;
    QTest::newRow("unknown codes match themselves") << u"x%Q5"_s << u"x%Q%e"_s << u"Mon 1970-01-05 00:00:00"_s;

    QTest::newRow("no such day") << u"31/2/24"_s << u"%e/%1m/%y"_s << QString();
    QTest::newRow("year 0") << u"0"_s << u"%Y"_s << QString();
    QTest::newRow("text left over") << u"5/15/24 extra"_s << u"%1m/%e/%y"_s << QString();
    QTest::newRow("four digits for a two-digit year") << u"2024"_s << u"%y"_s << QString();
    QTest::newRow("not a weekday") << u"Blursday"_s << u"%A"_s << QString();
    QTest::newRow("digits of another script") << u"\u0665/15/24"_s << u"%1m/%e/%y"_s << QString();
}

void TestCalendarDate::parses()
{
    QFETCH(QString, text);
    QFETCH(QString, format);
    QFETCH(QString, expected);
    const std::optional<ZARNCalendarDate> date = ZARNCalendarDate::dateWithString(text, format);
    QCOMPARE(date ? fields(*date) : QString(), expected);
    if (date)
        QCOMPARE(date->timeZone(), TestZone);
}

void TestCalendarDate::converts()
{
    const ZARNCalendarDate utc = ZARNCalendarDate::dateWithTimeIntervalSince1970(1715783420.25, QTimeZone::utc());
    QCOMPARE(fields(utc), u"Wed 2024-05-15 14:30:20"_s);
    QCOMPARE(utc.timeIntervalSince1970(), 1715783420.25);
    QCOMPARE(fields(ZARNCalendarDate::dateWithTimeIntervalSince1970(1715783420.25)), u"Wed 2024-05-15 09:30:20"_s);
    QCOMPARE(ZARNCalendarDate::dateWithTimeIntervalSince1970(std::nan("")).timeIntervalSince1970(), 0.0);
    const double infinity = std::numeric_limits<double>::infinity();
    QCOMPARE(fields(ZARNCalendarDate::dateWithTimeIntervalSince1970(infinity)), u"Fri 9999-12-31 23:59:59"_s);
    QCOMPARE(fields(ZARNCalendarDate::dateWithTimeIntervalSince1970(-infinity)), u"Mon 0001-01-01 00:00:00"_s);

    const QDateTime elsewhere(QDate(2024, 5, 15), QTime(16, 30, 20), QTimeZone(2 * 3600));
    QCOMPARE(ZARNCalendarDate::fromDateTime(elsewhere).toDateTime(), elsewhere);
    QCOMPARE(ZARNCalendarDate::fromDateTime(elsewhere).timeZone(), QTimeZone(2 * 3600));
    QVERIFY(ZARNCalendarDate::fromDateTime(QDateTime()) == ZARNCalendarDate());

    ZARNClock::setCurrent(std::make_unique<FixedClock>());
    QCOMPARE(ZARNCalendarDate::date().timeIntervalSince1970(), 1715783420.25);
    QCOMPARE(ZARNCalendarDate::date().timeZone(), TestZone);
    QVERIFY(ZARNClock::system().now() > 1715783420.25);   // the machine's clock stays reachable
    ZARNCalendarDate::setDefaultTimeZone(QTimeZone());
    QCOMPARE(ZARNCalendarDate::date().timeZone(), QTimeZone::systemTimeZone());
    ZARNCalendarDate::setDefaultTimeZone(TestZone);
    ZARNClock::setCurrent(nullptr);   // back to the machine's clock
    QVERIFY(qAbs(ZARNCalendarDate::date().timeIntervalSince1970() - QDateTime::currentMSecsSinceEpoch() / 1000.0) < 5);
}

QTEST_GUILESS_MAIN(TestCalendarDate)
#include "tst_calendardate.moc"
