// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNGeometry.h>

#include <QTest>

#include <cmath>

namespace {
// Compares bit for bit, so -0 differs from 0 and NaN equals NaN.
bool same(float a, float b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}
bool same(const ZARNRect &a, const ZARNRect &b)
{
    return same(a.x(), b.x()) && same(a.y(), b.y()) && same(a.width(), b.width()) && same(a.height(), b.height());
}
} // namespace

class TestGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void centerOnRect_data();
    void centerOnRect();
    void scaleRectToRect_data();
    void scaleRectToRect();
    void normalizedRectRoundsHalvesToEven_data();
    void normalizedRectRoundsHalvesToEven();
    void alignRectOnRect_data();
    void alignRectOnRect();
    void centreThenSnapLandsOnTheEvenPixel();
};

void TestGeometry::centerOnRect_data()
{
    QTest::addColumn<ZARNRect>("rect");
    QTest::addColumn<ZARNRect>("onRect");
    QTest::addColumn<ZARNRect>("expected");

    QTest::newRow("half-point origin kept") << ZARNRect(5, 5, 10, 10) << ZARNRect(0, 0, 15, 15) << ZARNRect(2.5f, 2.5f, 10, 10);
    QTest::newRow("larger than the target") << ZARNRect(0, 0, 30, 10) << ZARNRect(10, 10, 10, 10) << ZARNRect(0, 10, 30, 10);
    // 0.1f + (1e8f - 1) in float is 1e8, so the difference, not the sum, decides the result.
    QTest::newRow("difference taken in float") << ZARNRect(0, 0, 1, 1) << ZARNRect(0.1f, 0, 1e8f, 3) << ZARNRect(float(0.1f + 0.5e8), 1, 1, 1);
}

void TestGeometry::centerOnRect()
{
    QFETCH(ZARNRect, rect);
    QFETCH(ZARNRect, onRect);
    QFETCH(ZARNRect, expected);
    QVERIFY2(same(ZARNRectCenterOnRect(rect, onRect), expected), qPrintable(QDebug::toString(ZARNRectCenterOnRect(rect, onRect))));
}

void TestGeometry::scaleRectToRect_data()
{
    QTest::addColumn<ZARNRect>("rect");
    QTest::addColumn<ZARNRect>("toRect");
    QTest::addColumn<ZARNRect>("expected");

    const float nan = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("enlarges, keeps origin") << ZARNRect(10, 20, 100, 50) << ZARNRect(0, 0, 300, 300) << ZARNRect(10, 20, 300, 150);
    QTest::newRow("shrinks by height") << ZARNRect(0, 0, 100, 200) << ZARNRect(50, 50, 100, 100) << ZARNRect(0, 0, 50, 100);
    QTest::newRow("zero width loses to the finite ratio") << ZARNRect(0, 0, 0, 50) << ZARNRect(0, 0, 100, 100) << ZARNRect(0, 0, 0, 100);
    QTest::newRow("zero size gives NaN") << ZARNRect(0, 0, 0, 0) << ZARNRect(0, 0, 100, 100) << ZARNRect(0, 0, nan, nan);
}

void TestGeometry::scaleRectToRect()
{
    QFETCH(ZARNRect, rect);
    QFETCH(ZARNRect, toRect);
    QFETCH(ZARNRect, expected);
    const ZARNRect scaled = ZARNScaleRectToRect(rect, toRect);
    QCOMPARE(scaled.origin, expected.origin);
    QVERIFY(same(scaled.width(), expected.width()) || (std::isnan(scaled.width()) && std::isnan(expected.width())));
    QVERIFY(same(scaled.height(), expected.height()) || (std::isnan(scaled.height()) && std::isnan(expected.height())));
}

void TestGeometry::normalizedRectRoundsHalvesToEven_data()
{
    QTest::addColumn<ZARNRect>("rect");
    QTest::addColumn<ZARNRect>("expected");

    QTest::newRow("halves") << ZARNRect(0.5f, 1.5f, 2.5f, 3.5f) << ZARNRect(0, 2, 2, 4);
    QTest::newRow("negative half keeps its sign") << ZARNRect(-0.5f, -1.5f, 0.49f, 0.51f) << ZARNRect(-0.0f, -2, 0, 1);
}

void TestGeometry::normalizedRectRoundsHalvesToEven()
{
    QFETCH(ZARNRect, rect);
    QFETCH(ZARNRect, expected);
    QVERIFY(same(ZARNNormalizedRect(rect), expected));
    QVERIFY(same(ZARNIntegralPoint(rect.origin).x, expected.x()));
}

void TestGeometry::alignRectOnRect_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<ZARNPoint>("origin");

    // A 10 x 4 rectangle at (100, 100) aligned on (0, 0, 25, 20): top is y = 16.
    QTest::newRow("top left") << 0 << ZARNPoint{0, 16};
    QTest::newRow("top centre") << 1 << ZARNPoint{7.5f, 16};
    QTest::newRow("top right") << 2 << ZARNPoint{15, 16};
    QTest::newRow("middle left") << 3 << ZARNPoint{0, 8};
    QTest::newRow("centre") << 4 << ZARNPoint{7.5f, 8};
    QTest::newRow("middle right") << 5 << ZARNPoint{15, 8};
    QTest::newRow("bottom left") << 6 << ZARNPoint{0, 0};
    QTest::newRow("bottom centre") << 7 << ZARNPoint{7.5f, 0};
    QTest::newRow("bottom right") << 8 << ZARNPoint{15, 0};
    QTest::newRow("unknown code") << 9 << ZARNPoint{100, 100};
    QTest::newRow("negative code") << -1 << ZARNPoint{100, 100};
}

void TestGeometry::alignRectOnRect()
{
    QFETCH(int, alignment);
    QFETCH(ZARNPoint, origin);
    const ZARNRect aligned = ZARNAlignRectOnRect({100, 100, 10, 4}, {0, 0, 25, 20}, alignment);
    QCOMPARE(aligned.origin, origin);
    QCOMPARE(aligned.size, (ZARNSize{10, 4}));
}

void TestGeometry::centreThenSnapLandsOnTheEvenPixel()
{
    const ZARNRect centred = ZARNRectCenterOnRect({0, 0, 10, 10}, {0, 0, 15, 15});
    QCOMPARE(ZARNIntegralPoint(centred.origin), (ZARNPoint{2, 2}));
    QCOMPARE(ZARNMakeRectWithSize({3, 4}), ZARNRect(0, 0, 3, 4));
}

QTEST_GUILESS_MAIN(TestGeometry)
#include "tst_geometry.moc"
