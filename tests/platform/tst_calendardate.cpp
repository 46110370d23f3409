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

// A row of three text columns.
void addRow(const char *name, const char *first, const char *second, const char *third)
{
    QTest::newRow(name) << QString::fromUtf8(first) << QString::fromUtf8(second) << QString::fromUtf8(third);
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

    void arithmetic_data()
    {
        QTest::addColumn<QList<int>>("given"); // year, month, day, hour, minute, second
        QTest::addColumn<QList<int>>("added");
        QTest::addColumn<QString>("expected");

        const QList<int> none(6, 0), monthBack{0, -1, 0, 0, 0, 0}, minimum(6, IntMin), maximum(6, IntMax);
        const QList<int> may15{2024, 5, 15, 0, 0, 0};
        const auto row = [](const char *name, const QList<int> &given, const QList<int> &added, const char *expected) {
            QTest::newRow(name) << given << added << QString::fromLatin1(expected);
        };
        row("month 13 is January of the next year", {2024, 13, 1, 0, 0, 0}, none, "Wed 2025-01-01 00:00:00");
        row("day 0 is the last day of the month before", {2024, 3, 0, 0, 0, 0}, none, "Thu 2024-02-29 00:00:00");
        row("30 February runs into March", {2023, 2, 30, 0, 0, 0}, none, "Thu 2023-03-02 00:00:00");
        row("centuries follow the Gregorian rule", {2100, 3, 0, 0, 0, 0}, none, "Sun 2100-02-28 00:00:00");
        row("a month back in a century year", {2100, 3, 31, 0, 0, 0}, monthBack, "Sun 2100-02-28 00:00:00");
        row("before 1970", {1969, 12, 31, 12, 0, 0}, none, "Wed 1969-12-31 12:00:00");
        row("second -1 is the second before", {2024, 1, 1, 0, 0, -1}, none, "Sun 2023-12-31 23:59:59");
        row("fields at the minimum clamp", minimum, none, "Mon 0001-01-01 00:00:00");
        row("fields at the maximum clamp", maximum, none, "Fri 9999-12-31 23:59:59");
        row("31 March minus a month is 29 February", {2024, 3, 31, 12, 0, 0}, monthBack, "Thu 2024-02-29 12:00:00");
        row("the day is clamped before days are added", {2024, 3, 31, 0, 0, 0}, {0, -1, 1, 0, 0, 0},
            "Fri 2024-03-01 00:00:00");
        row("a year later", may15, {1, 0, 0, 0, 0, 0}, "Thu 2025-05-15 00:00:00");
        row("the end of today from its fields", {2024, 5, 15, 14, 30, 20}, {0, 0, 1, -14, -30, -21},
            "Wed 2024-05-15 23:59:59");
        row("huge amounts clamp", may15, maximum, "Fri 9999-12-31 23:59:59");
        row("huge negative amounts clamp", may15, minimum, "Mon 0001-01-01 00:00:00");
    }

    void arithmetic()
    {
        QFETCH(QList<int>, given);
        QFETCH(QList<int>, added);
        QFETCH(QString, expected);
        const ZARNCalendarDate date =
            ZARNCalendarDate::dateWithYear(given[0], given[1], given[2], given[3], given[4], given[5])
                .dateByAddingYears(added[0], added[1], added[2], added[3], added[4], added[5]);
        QCOMPARE(fields(date), expected);
        QCOMPARE(date.timeZone(), TestZone);
    }

    void followsDaylightSaving()
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

    void formats_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("expected");

        addRow("numeric", "2024-05-15T14:30:20", "%Y-%m-%d %H:%M:%S %p", "2024-05-15 14:30:20 PM");
        addRow("without leading zeros", "2007-03-05T09:05:07", "%1m/%e/%y %H:%M:%S", "3/5/07 09:05:07");
        addRow("names", "2024-05-15T14:30:20", "%A, %B %e (%a %b)", "Wednesday, May 15 (Wed May)");
        addRow("short years keep four digits", "0033-01-01T00:00:00", "%Y %y", "0033 33");
        addRow("percent, unknown codes and a trailing percent", "2024-05-15T00:00:00", "100%% %Q %1d %",
               "100% %Q %1d %");
    }

    void formats()
    {
        QFETCH(QString, date);
        QFETCH(QString, format);
        QFETCH(QString, expected);
        QCOMPARE(at(date).descriptionWithCalendarFormat(format), expected);
    }

    void parses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("expected"); // empty: does not parse

        addRow("leading zeros for codes without them", "05/05/2024", "%1m/%e/%Y", "Sun 2024-05-05 00:00:00");
        addRow("names in any case", "wednesday, MAY 15 2024", "%A, %B %e %Y", "Wed 2024-05-15 00:00:00");
        addRow("abbreviations for full names", "Wed May 15 2024", "%A %B %e %Y", "Wed 2024-05-15 00:00:00");
        addRow("the weekday does not move the date", "Mon 15.5.2024", "%a %d.%m.%Y", "Wed 2024-05-15 00:00:00");
        addRow("PM adds twelve hours", "2:30:20 PM 15.5.2024", "%H:%M:%S %p %d.%m.%Y", "Wed 2024-05-15 14:30:20");
        addRow("PM leaves afternoon hours", "14:30 PM", "%H:%M %p", "Thu 1970-01-01 14:30:00");
        addRow("12 AM is midnight", "12:05 am 1/1/2000", "%H:%M %p %1m/%e/%Y", "Sat 2000-01-01 00:05:00");
        addRow("two-digit years up to 68 are this century", "1/1/68", "%1m/%e/%y", "Sun 2068-01-01 00:00:00");
        addRow("two-digit years from 69 are the last", "1/1/69", "%1m/%e/%y", "Wed 1969-01-01 00:00:00");
        addRow("missing fields come from 1 January 1970", "14:30", "%H:%M", "Thu 1970-01-01 14:30:00");
        addRow("white space is loose", "  5 /15/ 24 ", "%1m / %e / %y", "Wed 2024-05-15 00:00:00");
        addRow("percent sign", "10%", "%d%%", "Sat 1970-01-10 00:00:00");
        addRow("unknown codes match themselves", "x%Q5", "x%Q%e", "Mon 1970-01-05 00:00:00");

        addRow("no such day", "31/2/24", "%e/%1m/%y", "");
        addRow("year 0", "0", "%Y", "");
        addRow("text left over", "5/15/24 extra", "%1m/%e/%y", "");
        addRow("four digits for a two-digit year", "2024", "%y", "");
        addRow("not a weekday", "Blursday", "%A", "");
        addRow("digits of another script", "\u0665/15/24", "%1m/%e/%y", "");
    }

    void parses()
    {
        QFETCH(QString, text);
        QFETCH(QString, format);
        QFETCH(QString, expected);
        const std::optional<ZARNCalendarDate> date = ZARNCalendarDate::dateWithString(text, format);
        QCOMPARE(date ? fields(*date) : QString(), expected);
        if (date)
            QCOMPARE(date->timeZone(), TestZone);
    }

    void converts()
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
        const double now = QDateTime::currentMSecsSinceEpoch() / 1000.0;
        QVERIFY(qAbs(ZARNCalendarDate::date().timeIntervalSince1970() - now) < 5);
    }
};

QTEST_GUILESS_MAIN(TestCalendarDate)
#include "tst_calendardate.moc"
