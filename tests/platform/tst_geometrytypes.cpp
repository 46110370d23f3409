// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNRect.h>

#include <QTest>

class TestGeometryTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void narrowsToFloat();
    void flip_data();
    void flip();
};

void TestGeometryTypes::narrowsToFloat()
{
    const ZARNRect rect = ZARNRect::fromQRectF(QRectF(0.1, 0.2, 0.3, 0.4));
    QCOMPARE(rect.x(), 0.1f);
    QCOMPARE(rect.height(), 0.4f);
    // Back in double, the float storage shows: 0.1f is not 0.1.
    QVERIFY(rect.toQRectF().x() != 0.1);
    QCOMPARE(ZARNPoint::fromQPointF({1.5, -2.5}), (ZARNPoint{1.5f, -2.5f}));
    QCOMPARE(ZARNSize::fromQSizeF({3, 4}).toQSizeF(), QSizeF(3, 4));
}

void TestGeometryTypes::flip_data()
{
    QTest::addColumn<ZARNRect>("rect");
    QTest::addColumn<float>("height");
    QTest::addColumn<ZARNRect>("flipped");

    QTest::newRow("bottom strip becomes top strip") << ZARNRect(0, 0, 10, 5) << 100.0f << ZARNRect(0, 95, 10, 5);
    QTest::newRow("centred stays centred") << ZARNRect(2, 40, 6, 20) << 100.0f << ZARNRect(2, 40, 6, 20);
    QTest::newRow("outside the container") << ZARNRect(0, 120, 1, 10) << 100.0f << ZARNRect(0, -30, 1, 10);
}

void TestGeometryTypes::flip()
{
    QFETCH(ZARNRect, rect);
    QFETCH(float, height);
    QFETCH(ZARNRect, flipped);
    QCOMPARE(rect.flipped(height), flipped);
    QCOMPARE(rect.flipped(height).flipped(height), rect);
    QCOMPARE(rect.origin.flipped(height).y, height - rect.y());
}

QTEST_GUILESS_MAIN(TestGeometryTypes)
#include "tst_geometrytypes.moc"
