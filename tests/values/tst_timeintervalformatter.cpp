// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXTimeIntervalFormatter.h>

#include <QTest>

#include <climits>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

BXTimeIntervalFormatter formatter(int minimum, int maximum, bool milliseconds = false)
{
    BXTimeIntervalFormatter result(minimum, maximum);
    result.setShowsMilliseconds(milliseconds);
    return result;
}

double parsed(const BXTimeIntervalFormatter &formatter, const QString &text)
{
    QVariant value;
    formatter.getObjectValue(&value, text, nullptr);
    return value.toDouble();
}
} // namespace

class TestTimeIntervalFormatter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initialisersAndSetters();
    void componentTable_data();
    void componentTable();
    void componentCount_data();
    void componentCount();
    void format_data();
    void format();
    void clampsBeforeFormatting_data();
    void clampsBeforeFormatting();
    void reservedStyle();
    void parse_data();
    void parse();
    void parseNullString_data();
    void parseNullString();
    void readsBackWhatItShows_data();
    void readsBackWhatItShows();
};

void TestTimeIntervalFormatter::initialisersAndSetters()
{
    const BXTimeIntervalFormatter plain;
    QCOMPARE(plain.minimumComponent(), int(BXTimeIntervalSecondsComponent));
    QCOMPARE(plain.maximumComponent(), int(BXTimeIntervalWeeksComponent));
    QCOMPARE(plain.minimumTimeInterval(), -4294967295.0);
    QCOMPARE(plain.maximumTimeInterval(), 4294967295.0);
    QCOMPARE(plain.componentSeparator(), QStringLiteral(":"));
    QCOMPARE(plain.componentStyle(), 0);
    QVERIFY(!plain.showsMilliseconds());
    QCOMPARE(plain.stringForObjectValue(0.0), QStringLiteral("0:00:00:00:00"));

    BXTimeIntervalFormatter full(1, 3, -5.0, 5.0, QString(), 7);
    QCOMPARE(full.componentSeparator(), QStringLiteral(":"));
    QCOMPARE(full.componentStyle(), 7); // unchecked in the initialiser only
    QCOMPARE(full.minimumTimeInterval(), -5.0);
    QCOMPARE(full.maximumTimeInterval(), 5.0);

    full.setComponentStyle(1);
    QCOMPARE(full.componentStyle(), 1);
    full.setComponentStyle(2);
    QCOMPARE(full.componentStyle(), 0);
    full.setComponentStyle(1);
    full.setComponentStyle(-1);
    QCOMPARE(full.componentStyle(), 0);

    full.setComponentSeparator(QStringLiteral(" "));
    QCOMPARE(full.componentSeparator(), QStringLiteral(" "));
    full.setComponentSeparator(QString());
    QCOMPARE(full.componentSeparator(), QStringLiteral(":"));
}

void TestTimeIntervalFormatter::componentTable_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<double>("scalar");
    QTest::addColumn<double>("base");

    QTest::newRow("seconds") << 0 << 1.0 << 60.0;
    QTest::newRow("minutes") << 1 << 60.0 << 60.0;
    QTest::newRow("hours") << 2 << 3600.0 << 24.0;
    QTest::newRow("days") << 3 << 86400.0 << 7.0;
    QTest::newRow("weeks") << 4 << 604800.0 << 1.0;
    QTest::newRow("below seconds") << -1 << 1.0 << 1.0;
    QTest::newRow("beyond weeks") << 5 << 1.0 << 1.0;
    QTest::newRow("far beyond") << INT_MIN << 1.0 << 1.0;
}

void TestTimeIntervalFormatter::componentTable()
{
    QFETCH(int, component);
    QFETCH(double, scalar);
    QFETCH(double, base);
    QCOMPARE(_BXTimeIntervalComponentScalar(component), scalar);
    QCOMPARE(_BXTimeIntervalComponentBase(component), base);
}

void TestTimeIntervalFormatter::componentCount_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("count");

    QTest::newRow("seconds to weeks") << 0 << 4 << 5;
    QTest::newRow("one component") << 2 << 2 << 1;
    QTest::newRow("minimum above maximum") << 3 << 1 << 1;
    QTest::newRow("negative components") << -1 << 1 << 3;
    QTest::newRow("widest span saturates") << INT_MIN << INT_MAX << INT_MAX;
    QTest::newRow("widest span reversed") << INT_MAX << INT_MIN << 1;
}

void TestTimeIntervalFormatter::componentCount()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, count);
    QCOMPARE(formatter(minimum, maximum)._componentCount(), count);
}

void TestTimeIntervalFormatter::format_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("milliseconds");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("one of each, weeks to seconds") << 0 << 4 << false << QVariant(694861.0) << u"1:01:01:01:01"_s;
    QTest::newRow("hours to seconds") << 0 << 2 << false << QVariant(3909.0) << u"1:05:09"_s;
    QTest::newRow("largest component never wraps") << 0 << 2 << false << QVariant(360000.0) << u"100:00:00"_s;
    QTest::newRow("minutes absorb hours") << 0 << 1 << false << QVariant(3909.0) << u"65:09"_s;
    QTest::newRow("fraction dropped without milliseconds") << 0 << 1 << false << QVariant(127.9) << u"2:07"_s;
    QTest::newRow("milliseconds") << 0 << 1 << true << QVariant(127.25) << u"2:07.250"_s;
    QTest::newRow("milliseconds padded") << 0 << 1 << true << QVariant(5.5) << u"0:05.500"_s;
    QTest::newRow("milliseconds over a minute") << 0 << 1 << true << QVariant(65.125) << u"1:05.125"_s;
    QTest::newRow("milliseconds not padded from ten") << 0 << 1 << true << QVariant(12.5) << u"0:12.500"_s;
    QTest::newRow("milliseconds tie rounds to even") << 0 << 1 << true << QVariant(0.0625) << u"0:00.062"_s;
    QTest::newRow("milliseconds ignored above seconds") << 1 << 2 << true << QVariant(3909.5) << u"1:05"_s;
    QTest::newRow("minutes only show whole minutes") << 1 << 1 << false << QVariant(150.0) << u"2"_s;
    QTest::newRow("seconds only divide by the base") << 0 << 0 << false << QVariant(150.0) << u"2"_s;
    QTest::newRow("hours only divide by the base") << 2 << 2 << false << QVariant(50.0) << u"2"_s;
    QTest::newRow("seconds only with milliseconds") << 0 << 0 << true << QVariant(150.0) << u"150.000"_s;
    QTest::newRow("minimum above maximum is one component") << 3 << 1 << false << QVariant(70.0) << u"10"_s;
    QTest::newRow("negative remainder keeps its zero") << 0 << 1 << false << QVariant(-5.0) << u"0:0-5"_s;
    QTest::newRow("negative minutes") << 0 << 1 << false << QVariant(-65.0) << u"-1:0-5"_s;
    QTest::newRow("negative milliseconds") << 0 << 1 << true << QVariant(-5.5) << u"0:0-5.500"_s;
    QTest::newRow("seconds beyond 32 bits") << 0 << 1 << false << QVariant(3e9) << u"50000000:0-8"_s;
    QTest::newRow("NaN shows as the minimum") << 0 << 2 << false << QVariant(notANumber) << u"-1193046:0-28:0-8"_s;
    QTest::newRow("components beyond weeks count seconds") << 4 << 5 << false << QVariant(1209600.0) << u"1209600:00"_s;
    QTest::newRow("components below seconds") << -3 << 0 << false << QVariant(3909.0) << u"3909:00:00:00"_s;
    QTest::newRow("span too wide to show") << INT_MIN << INT_MAX << false << QVariant(1.0) << u""_s;
    QTest::newRow("int") << 0 << 2 << false << QVariant(3909) << u"1:05:09"_s;
    QTest::newRow("unsigned 64-bit") << 0 << 2 << false << QVariant(Q_UINT64_C(3909)) << u"1:05:09"_s;
    QTest::newRow("float") << 0 << 1 << true << QVariant(2.5f) << u"0:02.500"_s;
    QTest::newRow("bool") << 0 << 1 << false << QVariant(true) << u"0:01"_s;
    QTest::newRow("text is not a number") << 0 << 2 << false << QVariant(u"3909"_s) << u"0"_s;
    QTest::newRow("invalid") << 0 << 2 << false << QVariant() << u"0"_s;
}

void TestTimeIntervalFormatter::format()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(bool, milliseconds);
    QFETCH(QVariant, value);
    QFETCH(QString, expected);
    QCOMPARE(formatter(minimum, maximum, milliseconds).stringForObjectValue(value), expected);
}

void TestTimeIntervalFormatter::clampsBeforeFormatting_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("above the maximum") << 0.0 << 600.0 << 3909.0 << u"10:00"_s;
    QTest::newRow("below the minimum") << 90.0 << 600.0 << 5.0 << u"1:30"_s;
    QTest::newRow("crossed bounds give the maximum") << 100.0 << 50.0 << 10.0 << u"0:50"_s;
    QTest::newRow("infinity") << 0.0 << 600.0 << infinity << u"10:00"_s;
    QTest::newRow("unbounded infinity") << 0.0 << infinity << infinity << u"-2147483648:0-8"_s;
}

void TestTimeIntervalFormatter::clampsBeforeFormatting()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    QFETCH(QString, expected);
    const BXTimeIntervalFormatter clamped(0, 1, minimum, maximum, u":"_s, 0);
    QCOMPARE(clamped.stringForObjectValue(value), expected);
}

void TestTimeIntervalFormatter::reservedStyle()
{
    BXTimeIntervalFormatter reserved(0, 2, 10.0, 20.0, u":"_s, 7);
    const QString shown = reserved.stringForObjectValue(3909.0);
    QVERIFY(shown.isEmpty());
    QVERIFY(!shown.isNull()); // still a string, which reads back as one

    reserved.setComponentStyle(1);
    QVariant value;
    QVERIFY(reserved.getObjectValue(&value, u"1:05:09"_s, nullptr));
    QCOMPARE(value, QVariant(10.0)); // 0, clamped
}

void TestTimeIntervalFormatter::parse_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<bool>("milliseconds");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");

    const QString colon = u":"_s;
    QTest::newRow("hours to seconds") << 0 << false << colon << u"1:05:09"_s << 3909.0;
    QTest::newRow("fraction dropped") << 0 << false << colon << u"2:07.250"_s << 127.0;
    QTest::newRow("fraction kept with milliseconds") << 0 << true << colon << u"2:07.250"_s << 127.25;
    QTest::newRow("negative fraction truncates toward zero") << 0 << false << colon << u"-2.5"_s << -2.0;
    QTest::newRow("smallest piece is the minimum component") << 1 << false << colon << u"2:30"_s << 9000.0;
    QTest::newRow("pieces beyond weeks count seconds") << 0 << false << colon << u"1:2:3:4:5:6:7"_s << 2178370.0;
    QTest::newRow("fewer pieces fill the smallest") << 0 << false << colon << u"75"_s << 75.0;
    QTest::newRow("empty text") << 0 << false << colon << u""_s << 0.0;
    QTest::newRow("empty pieces") << 0 << false << colon << u"1::"_s << 3600.0;
    QTest::newRow("leading space and trailing words") << 0 << false << colon << u"  5 min:x"_s << 300.0;
    QTest::newRow("non-breaking space") << 0 << false << colon << u"\u00a07"_s << 7.0;
    QTest::newRow("signs") << 0 << false << colon << u"+1:-30"_s << 30.0;
    QTest::newRow("two signs are no number") << 0 << false << colon << u"+-5"_s << 0.0;
    QTest::newRow("exponent") << 0 << false << colon << u"1e3"_s << 1000.0;
    QTest::newRow("exponent without digits") << 0 << false << colon << u"4e:1.5e"_s << 241.0;
    QTest::newRow("point alone") << 0 << false << colon << u".:.5"_s << 0.0;
    QTest::newRow("hexadecimal reads its zero") << 0 << false << colon << u"0x10"_s << 0.0;
    QTest::newRow("inf is no number") << 0 << false << colon << u"inf"_s << 0.0;
    QTest::newRow("nan is no number") << 0 << false << colon << u"nan"_s << 0.0;
    QTest::newRow("underflow") << 0 << true << colon << u"1e-400"_s << 0.0;
    QTest::newRow("overflow clamps") << 0 << true << colon << u"1e999"_s << 4294967295.0;
    QTest::newRow("overflow beyond 32 bits") << 0 << false << colon << u"1e999"_s << -2147483648.0;
    QTest::newRow("negative overflow beyond 32 bits") << 0 << false << colon << u"-1e999"_s << -2147483648.0;
    QTest::newRow("many digits overflow") << 0 << true << colon << QString(400, u'9') << 4294967295.0;
    QTest::newRow("leading zeros") << 0 << false << colon << QString(400, u'0') + u"12"_s << 12.0;
    QTest::newRow("beyond 32 bits") << 0 << false << colon << u"3000000000"_s << -2147483648.0;
    QTest::newRow("empty separator does not split") << 0 << false << u""_s << u"1:05"_s << 1.0;
    QTest::newRow("overlapping separator splits from the left") << 0 << false << u"::"_s << u"1:::2"_s << 60.0;
    QTest::newRow("words as separator") << 0 << false << u"h "_s << u"1h 05h 09"_s << 3909.0;
}

void TestTimeIntervalFormatter::parse()
{
    QFETCH(int, minimum);
    QFETCH(bool, milliseconds);
    QFETCH(QString, separator);
    QFETCH(QString, text);
    QFETCH(double, expected);

    BXTimeIntervalFormatter reader(minimum, minimum + 2);
    reader.setShowsMilliseconds(milliseconds);
    reader.setComponentSeparator(separator);
    QVariant value;
    QString error = u"untouched"_s;
    QVERIFY(reader.getObjectValue(&value, text, &error));
    QCOMPARE(value.typeId(), int(QMetaType::Double));
    QCOMPARE(value.toDouble(), expected);
    QCOMPARE(error, u"untouched"_s);
}

void TestTimeIntervalFormatter::parseNullString_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("expected");

    QTest::newRow("default clamps") << -4294967295.0 << 4294967295.0 << 0.0;
    QTest::newRow("positive clamps") << 10.0 << 20.0 << 10.0;
    QTest::newRow("negative clamps") << -20.0 << -10.0 << -20.0;
    QTest::newRow("fraction dropped") << 10.5 << 20.0 << 10.0;
}

void TestTimeIntervalFormatter::parseNullString()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, expected);
    const BXTimeIntervalFormatter reader(0, 2, minimum, maximum, u":"_s, 0);
    QVariant value;
    QVERIFY(!reader.getObjectValue(&value, QString(), nullptr));
    QCOMPARE(value, QVariant(expected));
    QVERIFY(!reader.getObjectValue(nullptr, QString(), nullptr));
}

void TestTimeIntervalFormatter::readsBackWhatItShows_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("milliseconds");
    QTest::addColumn<double>("value");

    QTest::newRow("weeks to seconds") << 0 << 4 << false << 694861.0;
    QTest::newRow("a year in hours") << 0 << 2 << false << 31536000.0;
    QTest::newRow("milliseconds") << 0 << 1 << true << 3599.875;
    QTest::newRow("days to minutes") << 1 << 3 << false << 93780.0;
    QTest::newRow("largest int") << 0 << 2 << false << 2147483647.0;
}

void TestTimeIntervalFormatter::readsBackWhatItShows()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(bool, milliseconds);
    QFETCH(double, value);
    const BXTimeIntervalFormatter clock = formatter(minimum, maximum, milliseconds);
    QCOMPARE(parsed(clock, clock.stringForObjectValue(value)), value);
}

QTEST_APPLESS_MAIN(TestTimeIntervalFormatter)
#include "tst_timeintervalformatter.moc"
