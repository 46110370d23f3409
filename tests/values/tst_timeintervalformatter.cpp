// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXTimeIntervalFormatter.h>

#include <QTest>

#include <climits>
#include <limits>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(BXTimeIntervalFormatter)

namespace {
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

BXTimeIntervalFormatter components(int minimum, int maximum, bool milliseconds = false)
{
    BXTimeIntervalFormatter result(minimum, maximum);
    result.setShowsMilliseconds(milliseconds);
    return result;
}

BXTimeIntervalFormatter clamped(double minimum, double maximum, int style = 0)
{
    return BXTimeIntervalFormatter(0, 1, minimum, maximum, u":"_s, style);
}

BXTimeIntervalFormatter separated(const QString &separator)
{
    BXTimeIntervalFormatter result(0, 2);
    result.setComponentSeparator(separator);
    return result;
}
} // namespace

class TestTimeIntervalFormatter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initialisersAndSetters()
    {
        QCOMPARE(BXTimeIntervalFormatter().stringForObjectValue(0.0), u"0:00:00:00:00"_s);
        BXTimeIntervalFormatter full(1, 3, -5.0, 5.0, QString(), 7);
        QCOMPARE(full.componentSeparator(), u":"_s);
        QCOMPARE(full.componentStyle(), 7); // unchecked in the initialiser only
        for (const auto &[style, stored] : {std::pair(1, 1), {2, 0}, {-1, 0}}) {
            full.setComponentStyle(style);
            QCOMPARE(full.componentStyle(), stored);
        }
        full.setComponentSeparator(u" "_s);
        full.setComponentSeparator(QString());
        QCOMPARE(full.componentSeparator(), u":"_s);
    }

    void format_data()
    {
        QTest::addColumn<BXTimeIntervalFormatter>("formatter");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("expected");

        QTest::newRow("one of each, weeks to seconds") << components(0, 4) << QVariant(694861.0) << u"1:01:01:01:01"_s;
        QTest::newRow("largest component never wraps") << components(0, 2) << QVariant(360000.0) << u"100:00:00"_s;
        QTest::newRow("fraction dropped") << components(0, 1) << QVariant(127.9) << u"2:07"_s;
        QTest::newRow("milliseconds") << components(0, 1, true) << QVariant(127.25) << u"2:07.250"_s;
        QTest::newRow("milliseconds only for seconds") << components(1, 2, true) << QVariant(3909.5) << u"1:05"_s;
        QTest::newRow("seconds alone divide by the base") << components(0, 0) << QVariant(150.0) << u"2"_s;
        QTest::newRow("seconds alone with milliseconds") << components(0, 0, true) << QVariant(150.0) << u"150.000"_s;
        QTest::newRow("minimum above maximum") << components(3, 1) << QVariant(70.0) << u"10"_s;
        QTest::newRow("negative remainder keeps its zero") << components(0, 1) << QVariant(-5.0) << u"0:0-5"_s;
        QTest::newRow("negative milliseconds") << components(0, 1, true) << QVariant(-5.5) << u"0:0-5.500"_s;
        QTest::newRow("seconds beyond 32 bits") << components(0, 1) << QVariant(3e9) << u"50000000:0-8"_s;
        QTest::newRow("NaN shows as the minimum") << components(0, 2) << QVariant(notANumber) << u"-1193046:0-28:0-8"_s;
        QTest::newRow("components beyond weeks") << components(4, 5) << QVariant(1209600.0) << u"1209600:00"_s;
        QTest::newRow("components below seconds") << components(-3, 0) << QVariant(3909.0) << u"3909:00:00:00"_s;
        QTest::newRow("span too wide to show") << components(INT_MIN, INT_MAX) << QVariant(1.0) << u""_s;
        QTest::newRow("bool is a number") << components(0, 1) << QVariant(true) << u"0:01"_s;
        QTest::newRow("text is not a number") << components(0, 2) << QVariant(u"3909"_s) << u"0"_s;
        QTest::newRow("invalid") << components(0, 2) << QVariant() << u"0"_s;
        QTest::newRow("above the maximum") << clamped(0, 600) << QVariant(3909.0) << u"10:00"_s;
        QTest::newRow("below the minimum") << clamped(90, 600) << QVariant(5.0) << u"1:30"_s;
        QTest::newRow("crossed bounds give the maximum") << clamped(100, 50) << QVariant(10.0) << u"0:50"_s;
        QTest::newRow("infinity unclamped") << clamped(0, infinity) << QVariant(infinity) << u"-2147483648:0-8"_s;
        QTest::newRow("reserved style") << clamped(0, 600, 7) << QVariant(5.0) << u""_s;
        QTest::newRow("words as separator") << separated(u"h "_s) << QVariant(3909.0) << u"1h 05h 09"_s;
    }

    void format()
    {
        QFETCH(BXTimeIntervalFormatter, formatter);
        QFETCH(QVariant, value);
        QFETCH(QString, expected);
        QCOMPARE(formatter.stringForObjectValue(value), expected);
    }

    void parse_data()
    {
        QTest::addColumn<BXTimeIntervalFormatter>("formatter");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("expected");

        const BXTimeIntervalFormatter clock = components(0, 2);
        QTest::newRow("hours to seconds") << clock << u"1:05:09"_s << 3909.0;
        QTest::newRow("fraction kept only with milliseconds") << components(0, 1, true) << u"2:07.250"_s << 127.25;
        QTest::newRow("negative fraction truncates toward zero") << clock << u"-2.5"_s << -2.0;
        QTest::newRow("last piece is the minimum component") << components(1, 3) << u"2:30"_s << 9000.0;
        QTest::newRow("pieces beyond weeks count seconds") << clock << u"1:2:3:4:5:6:7"_s << 2178370.0;
        QTest::newRow("empty pieces") << clock << u"1::"_s << 3600.0;
        QTest::newRow("leading space and trailing words") << clock << u"  5 min:x"_s << 300.0;
        QTest::newRow("signs") << clock << u"+1:-30"_s << 30.0;
        QTest::newRow("two signs are no number") << clock << u"+-5"_s << 0.0;
        QTest::newRow("hexadecimal reads its zero") << clock << u"0x10"_s << 0.0;
        QTest::newRow("underflow") << components(0, 1, true) << u"1e-400"_s << 0.0;
        QTest::newRow("many digits overflow") << components(0, 1, true) << QString(400, u'9') << 4294967295.0;
        QTest::newRow("overflow beyond 32 bits") << clock << u"1e999"_s << -2147483648.0;
        QTest::newRow("clamped") << clamped(10, 20) << u"1:00"_s << 20.0;
        QTest::newRow("reserved style reads zero") << clamped(10, 20, 1) << u"1:05:09"_s << 10.0;
        QTest::newRow("empty separator does not split") << separated(u""_s) << u"1:05"_s << 1.0;
        QTest::newRow("separator split from the left") << separated(u"::"_s) << u"1:::2"_s << 60.0;
        QTest::newRow("null, default clamps") << clock << QString() << 0.0;
        QTest::newRow("null, zero outside clamps") << clamped(10.5, 20) << QString() << 10.0;
    }

    void parse()
    {
        QFETCH(BXTimeIntervalFormatter, formatter);
        QFETCH(QString, text);
        QFETCH(double, expected);
        QVariant value;
        QString error = u"untouched"_s;
        QCOMPARE(formatter.getObjectValue(&value, text, &error), !text.isNull());
        QCOMPARE(value.typeId(), int(QMetaType::Double));
        QCOMPARE(value.toDouble(), expected);
        QCOMPARE(error, u"untouched"_s);
    }
};

QTEST_APPLESS_MAIN(TestTimeIntervalFormatter)
#include "tst_timeintervalformatter.moc"
