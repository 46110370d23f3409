// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/NSBezierPath_Category.h>

#include <QTest>

namespace {

// Which corners of \a rect the filled path covers, as bits: 1 bottom-left, 2 bottom-right,
// 4 top-right, 8 top-left (y up, as the path is made).
unsigned int coveredCorners(const QPainterPath &path, const QRectF &rect)
{
    const qreal in = 0.25;
    const QPointF corners[] = {{rect.left() + in, rect.top() + in}, {rect.right() - in, rect.top() + in},
                               {rect.right() - in, rect.bottom() - in}, {rect.left() + in, rect.bottom() - in}};
    unsigned int covered = 0;
    for (int i = 0; i < 4; ++i)
        covered |= path.contains(corners[i]) ? 1u << i : 0u;
    return covered;
}

} // namespace

class TestRoundedPath : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cornersAndBounds_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<float>("radius");
        QTest::addColumn<unsigned int>("style");
        QTest::addColumn<unsigned int>("covered");

        const QRectF wide(0, 0, 40, 20);
        QTest::newRow("all four rounded") << wide << 5.0f << 30u << 0u;
        QTest::newRow("left and right need top or bottom") << wide << 5.0f << 6u << 15u;
        QTest::newRow("bottom-left only") << wide << 5.0f << 18u << 14u;
        QTest::newRow("top-right only") << wide << 5.0f << 12u << 11u;
        QTest::newRow("bit 1 and bits above 16 ignored") << wide << 5.0f << (30u | 32u | 1u) << 0u;
        QTest::newRow("radius clamped to half the shorter side") << wide << 50.0f << 30u << 0u;
        QTest::newRow("radius 0 away from the origin") << QRectF(5, 5, 10, 10) << 0.0f << 30u << 15u;
        QTest::newRow("radius 0 on one corner") << QRectF(5, 5, 10, 10) << 0.0f << 18u << 15u;
    }

    void cornersAndBounds()
    {
        QFETCH(QRectF, rect);
        QFETCH(float, radius);
        QFETCH(unsigned int, style);
        QFETCH(unsigned int, covered);
        const QPainterPath path = Brixel::bezierPathWithRoundedRect(ZARNRect::fromQRectF(rect), radius, style);
        QCOMPARE(path.boundingRect(), rect);
        QCOMPARE(coveredCorners(path, rect), covered);
    }

    void arcsRunCounterClockwiseWithYUp()
    {
        // Bottom-left arc from 180 to 270 degrees starts on the left edge (x, y + r) and ends on
        // the bottom edge (x + r, y); then a straight join runs along the bottom, and closing
        // the path draws the left edge. Listed: each move's or line's point, each curve's end.
        const QPainterPath path = Brixel::bezierPathWithRoundedRect({10, 20, 40, 30}, 5);
        QList<QPointF> points;
        for (int i = 0; i < path.elementCount(); ++i) {
            if (path.elementAt(i).type != QPainterPath::CurveToDataElement)
                points << QPointF(path.elementAt(path.elementAt(i).isCurveTo() ? i + 2 : i));
        }
        const QList<QPointF> expected = {{10, 25}, {15, 20}, {45, 20}, {50, 25}, {50, 45},
                                         {45, 50}, {15, 50}, {10, 45}, {10, 25}};
        QCOMPARE(points, expected);
        // A negative radius is used as it is, so its corners bulge outwards.
        QVERIFY(Brixel::bezierPathWithRoundedRect({0, 0, 40, 20}, -5).boundingRect().width() > 40);
    }
};

QTEST_GUILESS_MAIN(TestRoundedPath)
#include "tst_roundedpath.moc"
