// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXDateFormats.h>
#include <Brixel/ZARNSystemVersion.h>

#include <QTest>

using namespace Qt::StringLiterals;

class TestDateFormats : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void shortest_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<quint32>("version");
        QTest::addColumn<QString>("shortest");

        QTest::newRow("month, day, year") << u"%m/%d/%y"_s << 0x1030u << u"%1m/%e/%y"_s;
        QTest::newRow("day, month, year") << u"%d.%m.%Y"_s << 0x1030u << u"%e/%1m/%y"_s;
        QTest::newRow("year, month, day") << u"%Y-%m-%d"_s << 0x1030u << u"%y/%1m/%e"_s;
        QTest::newRow("year, day, month") << u"%Y %d %B"_s << 0x1030u << u"%y/%e/%1m"_s;
        QTest::newRow("month, year, day") << u"%b %Y %e"_s << 0x1030u << u"%1m/%y/%e"_s;
        QTest::newRow("day, year, month") << u"%e %y %m"_s << 0x1030u << u"%e/%y/%1m"_s;
        QTest::newRow("before 0x1030: %m") << u"%m/%d/%y"_s << 0x102Fu << u"%m/%e/%y"_s;
        QTest::newRow("no letters") << u"%H:%M"_s << 0x1030u << u"//%y"_s;
        QTest::newRow("empty") << QString() << 0x1030u << u"//%y"_s;
        // The e of "Week" counts as the day, before the month.
        QTest::newRow("literal text") << u"Week %W, %m/%d"_s << 0x1030u << u"%e/%1m/%y"_s;
        QTest::newRow("year missing") << u"%d/%m"_s << 0x1030u << u"%e/%1m/%y"_s;
        QTest::newRow("day missing") << u"%m %Y"_s << 0x1030u << u"%1m/%y/%e"_s;
    }

    void shortest()
    {
        QFETCH(QString, format);
        QFETCH(quint32, version);
        QFETCH(QString, shortest);
        Brixel::ZARNSetSystemVersion(version);
        QCOMPARE(Brixel::DateFormatStringToShortestDateFormatString(format), shortest);
    }

    void localeFormats_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("format");

        QTest::newRow("en_US") << QLocale(u"en_US"_s) << u"%m/%d/%y"_s;
        QTest::newRow("de_DE") << QLocale(u"de_DE"_s) << u"%d.%m.%y"_s;
        QTest::newRow("ja_JP") << QLocale(u"ja_JP"_s) << u"%Y/%m/%d"_s;
    }

    void localeFormats()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, format);
        QCOMPARE(Brixel::localeShortDateFormat(locale), format);
    }
};

QTEST_GUILESS_MAIN(TestDateFormats)
#include "tst_dateformats.moc"
