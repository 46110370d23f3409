// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNClock.h>
#include <Brixel/ZARNDateRanges.h>

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QTimeZone FixedZone(-5 * 3600);

class StoppedClock : public ZARNClock
{
public:
    explicit StoppedClock(double seconds) : seconds(seconds) { }
    double now() const override { return seconds; }
    const double seconds;
};

QString fields(const ZARNCalendarDate &date)
{
    return date.descriptionWithCalendarFormat(u"%a %Y-%m-%d %H:%M:%S"_s);
}

} // namespace

class TestDateRanges : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanupTestCase()
    {
        ZARNCalendarDate::setDefaultTimeZone(QTimeZone());
        ZARNClock::setCurrent(nullptr);
    }

    void ranges_data()
    {
        QTest::addColumn<QTimeZone>("zone");
        QTest::addColumn<QString>("now");
        QTest::addColumn<int>("mnemonic");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");

        const char *wednesday = "2024-05-15T14:30:20";
        const auto row = [&](const char *name, int mnemonic, const char *start, const char *end,
                             const char *now = nullptr, const QTimeZone &zone = FixedZone) {
            QTest::newRow(name) << zone << QString::fromLatin1(now ? now : wednesday) << mnemonic
                                << QString::fromLatin1(start) << QString::fromLatin1(end);
        };
        row("today", DateRangeMnemonicToday, "Wed 2024-05-15 00:00:00", "Wed 2024-05-15 23:59:59");
        row("yesterday", DateRangeMnemonicYesterday, "Tue 2024-05-14 00:00:00", "Tue 2024-05-14 23:59:59");
        row("last week", DateRangeMnemonicLastWeek, "Sun 2024-05-05 00:00:00", "Sat 2024-05-11 23:59:59");
        row("this week", DateRangeMnemonicThisWeek, "Sun 2024-05-12 00:00:00", "Sat 2024-05-18 23:59:59");
        row("week to date ends at the start of today", DateRangeMnemonicWeekToDate, "Sun 2024-05-12 00:00:00",
            "Wed 2024-05-15 00:00:00");
        row("last month", DateRangeMnemonicLastMonth, "Mon 2024-04-01 00:00:00", "Tue 2024-04-30 23:59:59");
        row("this month", DateRangeMnemonicThisMonth, "Wed 2024-05-01 00:00:00", "Fri 2024-05-31 23:59:59");
        row("month to date", DateRangeMnemonicMonthToDate, "Wed 2024-05-01 00:00:00", "Wed 2024-05-15 23:59:59");
        row("last quarter", DateRangeMnemonicLastQuarter, "Mon 2024-01-01 00:00:00", "Sun 2024-03-31 23:59:59");
        row("this quarter", DateRangeMnemonicThisQuarter, "Mon 2024-04-01 00:00:00", "Sun 2024-06-30 23:59:59");
        row("quarter to date", DateRangeMnemonicQuarterToDate, "Mon 2024-04-01 00:00:00", "Wed 2024-05-15 23:59:59");
        row("last year", DateRangeMnemonicLastYear, "Sun 2023-01-01 00:00:00", "Sun 2023-12-31 23:59:59");
        row("this year", DateRangeMnemonicThisYear, "Mon 2024-01-01 00:00:00", "Tue 2024-12-31 23:59:59");
        row("year to date", DateRangeMnemonicYearToDate, "Mon 2024-01-01 00:00:00", "Wed 2024-05-15 23:59:59");

        row("on a Sunday week to date is empty", DateRangeMnemonicWeekToDate, "Sun 2024-05-19 00:00:00",
            "Sun 2024-05-19 00:00:00", "2024-05-19T09:00:00");
        row("last quarter in the year before", DateRangeMnemonicLastQuarter, "Tue 2024-10-01 00:00:00",
            "Tue 2024-12-31 23:59:59", "2025-01-02T08:00:00");
        row("last month from 31 March is February", DateRangeMnemonicLastMonth, "Thu 2024-02-01 00:00:00",
            "Thu 2024-02-29 23:59:59", "2024-03-31T12:00:00");

        const char *untouched = "Sat 2001-02-03 04:05:06";
        row("a mnemonic past the last leaves the outputs", 14, untouched, untouched);
        row("a negative mnemonic leaves the outputs", -1, untouched, untouched);

        // Clocks in Berlin go from 02:00 to 03:00 on Sunday 31 March 2024.
        const QTimeZone berlin("Europe/Berlin");
        row("today on a 23-hour day", DateRangeMnemonicToday, "Sun 2024-03-31 00:00:00", "Sun 2024-03-31 23:59:59",
            "2024-03-31T14:30:20", berlin);
        row("a week over the change", DateRangeMnemonicThisWeek, "Sun 2024-03-31 00:00:00", "Sat 2024-04-06 23:59:59",
            "2024-04-03T01:00:00", berlin);
    }

    void ranges()
    {
        QFETCH(QTimeZone, zone);
        QFETCH(QString, now);
        QFETCH(int, mnemonic);
        QFETCH(QString, start);
        QFETCH(QString, end);
        if (!zone.isValid())
            QSKIP("no time zone data for this row");

        ZARNCalendarDate::setDefaultTimeZone(zone);
        QDateTime wallClock = QDateTime::fromString(now, Qt::ISODate);
        wallClock.setTimeZone(zone);
        ZARNClock::setCurrent(std::make_unique<StoppedClock>(wallClock.toMSecsSinceEpoch() / 1000.0 + 0.25));
        const ZARNCalendarDate marker = ZARNCalendarDate::dateWithYear(2001, 2, 3, 4, 5, 6);
        ZARNCalendarDate first = marker, last = marker, startAlone = marker, endAlone = marker;
        Brixel::DateRangeForMnemonic(mnemonic, &first, &last);
        // Either output may be left out, without changing the other.
        Brixel::DateRangeForMnemonic(mnemonic, &startAlone, nullptr);
        Brixel::DateRangeForMnemonic(mnemonic, nullptr, &endAlone);
        Brixel::DateRangeForMnemonic(mnemonic, nullptr, nullptr);
        QCOMPARE(fields(first), start);
        QCOMPARE(fields(last), end);
        QVERIFY(startAlone == first && endAlone == last);
        QCOMPARE(first.timeZone(), zone);
        QCOMPARE(last.timeZone(), zone);
    }

    void daysInMonth_data()
    {
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("days");

        constexpr int IntMin = std::numeric_limits<int>::min();
        constexpr int IntMax = std::numeric_limits<int>::max();
        QTest::newRow("April") << 4 << 2023 << 30;
        QTest::newRow("December") << 12 << 2023 << 31;
        QTest::newRow("February of a leap year") << 2 << 2024 << 29;
        QTest::newRow("February of a common year") << 2 << 2023 << 28;
        QTest::newRow("centuries are leap years too") << 2 << 1900 << 29;
        QTest::newRow("month 13 counts as February") << 13 << 2023 << 28;
        QTest::newRow("most negative month and year") << IntMin << IntMin << 29;
        QTest::newRow("largest month and year") << IntMax << IntMax << 28;
    }

    void daysInMonth()
    {
        QFETCH(int, month);
        QFETCH(int, year);
        QFETCH(int, days);
        QCOMPARE(Brixel::DaysInMonth(month, year), days);
    }
};

QTEST_GUILESS_MAIN(TestDateRanges)
#include "tst_dateranges.moc"
