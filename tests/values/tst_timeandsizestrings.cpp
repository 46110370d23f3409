// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNLocalizedString.h>
#include <Brixel/ZARNTimeAndSizeStrings.h>

#include <QTest>

#include <climits>
#include <limits>

using namespace Qt::StringLiterals;

namespace {
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
} // namespace

class TestTimeAndSizeStrings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void durations_data()
    {
        QTest::addColumn<double>("interval");
        QTest::addColumn<QString>("longString");
        QTest::addColumn<QString>("description");

        const QString none = u"--:--:--:--"_s;
        QTest::newRow("below a second") << 0.9 << none << u"00:00:00"_s;
        QTest::newRow("one second") << 1.0 << u"1 second"_s << u"00:00:01"_s;
        QTest::newRow("minute and second") << 61.0 << u"1 minute, 1 second"_s << u"00:01:01"_s;
        QTest::newRow("fraction dropped") << 3725.5 << u"1 hour, 2 minutes, 5 seconds"_s << u"01:02:05"_s;
        QTest::newRow("hours and seconds, two digits") << 36010.0 << u"10 hours, 10 seconds"_s << u"10:00:10"_s;
        QTest::newRow("one hour and seconds") << 3605.0 << u"1 hour, 5 seconds"_s << u"01:00:05"_s;
        QTest::newRow("exactly a day") << 86400.0 << u"1 day"_s << u"24:00:00"_s;
        QTest::newRow("a day hides seconds") << 90061.0 << u"1 day, 1 hour, 1 minute"_s << u"25:01:01"_s;
        QTest::newRow("day and minute, hours beyond a day") << 86460.0 << u"1 day, 1 minute"_s << u"24:01:00"_s;
        QTest::newRow("seconds from the fraction too") << 59.99 << u"59 seconds"_s << u"00:00:59"_s;
        QTest::newRow("negative fields keep their zero") << -5.0 << none << u"00:00:0-5"_s;
        QTest::newRow("beyond 32 bits") << 3e9 + 30 << none << u"0-596523:0-14:30"_s;
        QTest::newRow("NaN") << notANumber << none << u"0-596523:0-14:-2147483648"_s;
    }

    void durations()
    {
        QFETCH(double, interval);
        QFETCH(QString, longString);
        QFETCH(QString, description);
        QCOMPARE(Brixel::ZARNLongStringForTimeInterval(interval), longString);
        QCOMPARE(Brixel::TimeIntervalDescription(interval), description);
    }

    void fileSize_data()
    {
        QTest::addColumn<quint64>("size");
        QTest::addColumn<QString>("expected");

        QTest::newRow("one has no singular") << Q_UINT64_C(1) << u"1 bytes"_s;
        QTest::newRow("largest in bytes") << Q_UINT64_C(1023) << u"1023 bytes"_s;
        QTest::newRow("smallest in kilobytes") << Q_UINT64_C(1024) << u"1.0KB"_s;
        QTest::newRow("largest in kilobytes") << Q_UINT64_C(1048575) << u"1024.0KB"_s;
        QTest::newRow("smallest in megabytes") << Q_UINT64_C(1048576) << u"1.0MB"_s;
        QTest::newRow("smallest in gigabytes") << Q_UINT64_C(1073741824) << u"1.0GB"_s;
        QTest::newRow("float rounding shows") << Q_UINT64_C(1449551462) << u"1.4GB"_s;
        QTest::newRow("largest size") << std::numeric_limits<quint64>::max() << u"17179869184.0GB"_s;
    }

    void fileSize()
    {
        QFETCH(quint64, size);
        QFETCH(QString, expected);
        QCOMPARE(Brixel::StringForFileSize(size), expected);
    }

    void roundToIncrement_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("increment");
        QTest::addColumn<int>("expected");

        QTest::newRow("down") << 11 << 5 << 10;
        QTest::newRow("odd increment rounds up early") << 12 << 5 << 15;
        QTest::newRow("half rounds up") << 15 << 10 << 20;
        QTest::newRow("negative rounds toward zero") << -8 << 5 << -5;
        QTest::newRow("negative increment") << -7 << -5 << -10;
        QTest::newRow("zero increment leaves the value") << 7 << 0 << 7;
        QTest::newRow("smallest int by minus one wraps") << INT_MIN << -1 << INT_MAX;
        QTest::newRow("past the largest int wraps") << INT_MAX << 10 << -2147483646;
    }

    void roundToIncrement()
    {
        QFETCH(int, value);
        QFETCH(int, increment);
        QFETCH(int, expected);
        QCOMPARE(Brixel::ZARNRoundToNearestIncrement(value, increment), expected);
    }

    // Last: the library's translator stays installed once loaded.
    void translatedUnits_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<double>("interval");
        QTest::addColumn<QString>("expected");

        QTest::newRow("German") << QLocale(QLocale::German) << 93785.0 << u"1 Tag, 2 Stunden, 3 Minuten"_s;
        QTest::newRow("French") << QLocale(QLocale::French) << 3661.0 << u"1 heure, 1 minute, 1 seconde"_s;
        QTest::newRow("Spanish") << QLocale(QLocale::Spanish) << 172920.0 << u"2 días, 2 minutos"_s;
        QTest::newRow("Japanese") << QLocale(QLocale::Japanese) << 7205.0 << u"2 時間, 5 秒"_s;
    }

    void translatedUnits()
    {
        QFETCH(QLocale, locale);
        QFETCH(double, interval);
        QFETCH(QString, expected);
        QVERIFY(Brixel::ZARNLoadTranslations(locale));
        QCOMPARE(Brixel::ZARNLongStringForTimeInterval(interval), expected);
    }
};

QTEST_GUILESS_MAIN(TestTimeAndSizeStrings)
#include "tst_timeandsizestrings.moc"
