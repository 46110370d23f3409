// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNClock.h>
#include <Brixel/ZARNDateRanges.h>

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QTimeZone FixedZone(-5 * 3600);

class SettableClock : public ZARNClock
{
public:
    double now() const override { return seconds; }
    double seconds = 0;
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
    void init();
    void cleanupTestCase();
    void ranges_data();
    void ranges();
    void daysInMonth_data();
    void daysInMonth();

private:
    // Sets now to this wall-clock time in the default zone, plus a quarter second.
    void setNow(const QString &isoLocal);

    SettableClock *m_clock = nullptr;
};

void TestDateRanges::init()
{
    ZARNCalendarDate::setDefaultTimeZone(FixedZone);
    auto clock = std::make_unique<SettableClock>();
    m_clock = clock.get();
    ZARNClock::setCurrent(std::move(clock));
}

void TestDateRanges::cleanupTestCase()
{
    ZARNCalendarDate::setDefaultTimeZone(QTimeZone());
    ZARNClock::setCurrent(nullptr);
}

void TestDateRanges::setNow(const QString &isoLocal)
{
    const QDateTime local = QDateTime::fromString(isoLocal, Qt::ISODate);
    m_clock->seconds = ZARNCalendarDate::dateWithYear(local.date().year(), local.date().month(), local.date().day(),
                                                      local.time().hour(), local.time().minute(), local.time().second())
                           .timeIntervalSince1970()
        + 0.25;
}

void TestDateRanges::ranges_data()
{
    QTest::addColumn<QTimeZone>("zone");
    QTest::addColumn<QString>("now");
    QTest::addColumn<int>("mnemonic");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");

    const auto row = [](const char *name, const QString &now, int mnemonic, const QString &start, const QString &end,
                        const QTimeZone &zone = FixedZone) {
        QTest::newRow(name) << zone << now << mnemonic << start << end;
    };
    const QString wednesday = u"2024-05-15T14:30:20"_s;
    row("today", wednesday, DateRangeMnemonicToday, u"Wed 2024-05-15 00:00:00"_s, u"Wed 2024-05-15 23:59:59"_s);
    row("yesterday", wednesday, DateRangeMnemonicYesterday, u"Tue 2024-05-14 00:00:00"_s, u"Tue 2024-05-14 23:59:59"_s);
    row("last week", wednesday, DateRangeMnemonicLastWeek, u"Sun 2024-05-05 00:00:00"_s, u"Sat 2024-05-11 23:59:59"_s);
    row("this week", wednesday, DateRangeMnemonicThisWeek, u"Sun 2024-05-12 00:00:00"_s, u"Sat 2024-05-18 23:59:59"_s);
    row("week to date ends at the start of today", wednesday, DateRangeMnemonicWeekToDate,
        u"Sun 2024-05-12 00:00:00"_s, u"Wed 2024-05-15 00:00:00"_s);
    row("last month", wednesday, DateRangeMnemonicLastMonth, u"Mon 2024-04-01 00:00:00"_s, u"Tue 2024-04-30 23:59:59"_s);
    row("this month", wednesday, DateRangeMnemonicThisMonth, u"Wed 2024-05-01 00:00:00"_s, u"Fri 2024-05-31 23:59:59"_s);
    row("month to date", wednesday, DateRangeMnemonicMonthToDate, u"Wed 2024-05-01 00:00:00"_s, u"Wed 2024-05-15 23:59:59"_s);
    row("last quarter", wednesday, DateRangeMnemonicLastQuarter, u"Mon 2024-01-01 00:00:00"_s, u"Sun 2024-03-31 23:59:59"_s);
    row("this quarter", wednesday, DateRangeMnemonicThisQuarter, u"Mon 2024-04-01 00:00:00"_s, u"Sun 2024-06-30 23:59:59"_s);
    row("quarter to date", wednesday, DateRangeMnemonicQuarterToDate, u"Mon 2024-04-01 00:00:00"_s, u"Wed 2024-05-15 23:59:59"_s);
    row("last year", wednesday, DateRangeMnemonicLastYear, u"Sun 2023-01-01 00:00:00"_s, u"Sun 2023-12-31 23:59:59"_s);
    row("this year", wednesday, DateRangeMnemonicThisYear, u"Mon 2024-01-01 00:00:00"_s, u"Tue 2024-12-31 23:59:59"_s);
    row("year to date", wednesday, DateRangeMnemonicYearToDate, u"Mon 2024-01-01 00:00:00"_s, u"Wed 2024-05-15 23:59:59"_s);

    const QString sunday = u"2024-05-19T09:00:00"_s;
    row("on a Sunday week to date is empty", sunday, DateRangeMnemonicWeekToDate, u"Sun 2024-05-19 00:00:00"_s, u"Sun 2024-05-19 00:00:00"_s);

    const QString newYear = u"2025-01-02T08:00:00"_s;
    row("yesterday over the year end", u"2025-01-01T00:00:00"_s, DateRangeMnemonicYesterday, u"Tue 2024-12-31 00:00:00"_s, u"Tue 2024-12-31 23:59:59"_s);
    row("this week across the year end", newYear, DateRangeMnemonicThisWeek, u"Sun 2024-12-29 00:00:00"_s, u"Sat 2025-01-04 23:59:59"_s);
    row("last quarter in the year before", newYear, DateRangeMnemonicLastQuarter, u"Tue 2024-10-01 00:00:00"_s, u"Tue 2024-12-31 23:59:59"_s);

    const QString untouched = u"Sat 2001-02-03 04:05:06"_s;
    row("a mnemonic past the last leaves the outputs", wednesday, 14, untouched, untouched);
    row("a negative mnemonic leaves the outputs", wednesday, -1, untouched, untouched);

    row("last month from 31 March is February", u"2024-03-31T12:00:00"_s, DateRangeMnemonicLastMonth,
        u"Thu 2024-02-01 00:00:00"_s, u"Thu 2024-02-29 23:59:59"_s);

    // Clocks in Berlin go from 02:00 to 03:00 on Sunday 31 March 2024.
    const QTimeZone berlin("Europe/Berlin");
    row("today on a 23-hour day", u"2024-03-31T14:30:20"_s, DateRangeMnemonicToday,
        u"Sun 2024-03-31 00:00:00"_s, u"Sun 2024-03-31 23:59:59"_s, berlin);
    row("a week over the change", u"2024-04-03T01:00:00"_s, DateRangeMnemonicThisWeek,
        u"Sun 2024-03-31 00:00:00"_s, u"Sat 2024-04-06 23:59:59"_s, berlin);
}

void TestDateRanges::ranges()
{
    QFETCH(QTimeZone, zone);
    QFETCH(QString, now);
    QFETCH(int, mnemonic);
    QFETCH(QString, start);
    QFETCH(QString, end);
    if (!zone.isValid())
        QSKIP("no time zone data for this row");

    ZARNCalendarDate::setDefaultTimeZone(zone);
    setNow(now);
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

void TestDateRanges::daysInMonth_data()
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

void TestDateRanges::daysInMonth()
{
    QFETCH(int, month);
    QFETCH(int, year);
    QFETCH(int, days);
    QCOMPARE(Brixel::DaysInMonth(month, year), days);
}

QTEST_GUILESS_MAIN(TestDateRanges)
#include "tst_dateranges.moc"
