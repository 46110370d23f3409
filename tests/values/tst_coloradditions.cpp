// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSColorAdditions.h>

#include <QTest>

using namespace Qt::StringLiterals;

class TestColorAdditions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void read_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("expected");

        QTest::newRow("three parts give black") << u"1,0,0"_s << QColor::fromRgbF(0, 0, 0, 1);
        QTest::newRow("further parts ignored") << u"0.25,0.5,0.75,1,junk"_s << QColor::fromRgbF(0.25f, 0.5f, 0.75f, 1);
        QTest::newRow("leading number of each part") << u" \t0.2x, .5 ,+1e-1,25E-2%"_s
                                                     << QColor::fromRgbF(0.2f, 0.5f, 0.1f, 0.25f);
        QTest::newRow("no number reads zero") << u"red,-,.,e5"_s << QColor::fromRgbF(0, 0, 0, 0);
        QTest::newRow("exponent without digits ends the number")
            << u"1e,0.5e+,0,1"_s << QColor::fromRgbF(1, 0.5f, 0, 1);
        QTest::newRow("clamped to the unit range") << u"2,-1,1e99,-1e99"_s << QColor::fromRgbF(1, 0, 1, 0);
        QTest::newRow("nan and inf are not numbers") << u"nan,inf,1,1"_s << QColor::fromRgbF(0, 0, 1, 1);
    }

    void read()
    {
        QFETCH(QString, text);
        QFETCH(QColor, expected);
        QCOMPARE(Brixel::colorFromCalibratedRGBString(text), expected);
    }

    void everyStoredColorRoundTrips()
    {
        for (int stored = 0; stored <= 0xFFFF; ++stored) {
            const QColor color = QColor::fromRgba64(stored, 0xFFFF - stored, stored, stored);
            const QColor back = Brixel::colorFromCalibratedRGBString(Brixel::asCalibratedRGBString(color));
            if (back.rgba64() != color.rgba64())
                QFAIL(qPrintable(u"16-bit value %1 came back as %2"_s.arg(stored).arg(back.rgba64().red())));
        }
    }

    void exactComponents_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QRgbaFloat32>("components");
        QTest::addColumn<QString>("written");

        QTest::newRow("half alpha is exactly half") << u"1,0,0,0.5"_s << QRgbaFloat32{1, 0, 0, 0.5f}
                                                    << u"1.00000,0.00000,0.00000,0.50000"_s;
        QTest::newRow("a tie rounds to even") << u"0.015625,0.984375,0,1"_s << QRgbaFloat32{0.015625f, 0.984375f, 0, 1}
                                              << u"0.01562,0.98438,0.00000,1.00000"_s;
        QTest::newRow("single precision kept") << u"0.1,0.2,0.3,0.7"_s << QRgbaFloat32{0.1f, 0.2f, 0.3f, 0.7f}
                                               << u"0.10000,0.20000,0.30000,0.70000"_s;
        QTest::newRow("too few parts") << u"0.5"_s << QRgbaFloat32{0, 0, 0, 1} << u"0.00000,0.00000,0.00000,1.00000"_s;
    }

    void exactComponents()
    {
        QFETCH(QString, text);
        QFETCH(QRgbaFloat32, components);
        QFETCH(QString, written);
        const QRgbaFloat32 read = Brixel::rgbaFromCalibratedRGBString(text);
        const auto floats = [](QRgbaFloat32 c) { return QList<float>{c.r, c.g, c.b, c.a}; };
        QCOMPARE(floats(read), floats(components));
        QCOMPARE(Brixel::asCalibratedRGBString(read), written);
    }
};

QTEST_GUILESS_MAIN(TestColorAdditions)
#include "tst_coloradditions.moc"
