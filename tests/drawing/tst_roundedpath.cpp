// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/NSBezierPath_Category.h>

#include <QImage>
#include <QPainter>
#include <QTest>

namespace {

// The path's element kinds, one letter each (M move, L line, C curve start), curve data
// elements left out, so the order of moves, joins and arcs reads as a word.
QString shape(const QPainterPath &path)
{
    QString word;
    for (int i = 0; i < path.elementCount(); ++i) {
        if (path.elementAt(i).type != QPainterPath::CurveToDataElement)
            word += QLatin1Char("MLC"[path.elementAt(i).type]);
    }
    return word;
}

} // namespace

class TestRoundedPath : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void elementOrder_data();
    void elementOrder();
    void arcsRunCounterClockwiseWithYUp();
    void filledCapsuleLeavesItsCornersEmpty();
};

void TestRoundedPath::elementOrder_data()
{
    QTest::addColumn<unsigned int>("style");
    QTest::addColumn<float>("radius");
    QTest::addColumn<QString>("shape");

    // Each 90-degree arc is one cubic curve; joins between arcs appear only where the arc
    // ends and the next begins at different points.
    QTest::newRow("left and right without an edge") << 6u << 5.0f << QStringLiteral("MLLLL");
    QTest::newRow("top and bottom without a side") << 24u << 5.0f << QStringLiteral("MLLLL");
    QTest::newRow("bottom-left only") << 18u << 5.0f << QStringLiteral("MCLLLL");
    QTest::newRow("top-right only") << 12u << 5.0f << QStringLiteral("MLLCLL");
    QTest::newRow("all four") << 30u << 5.0f << QStringLiteral("MCLCLCLCL");
    QTest::newRow("bit 1 and bits above 16 ignored") << (30u | 32u | 1u) << 5.0f << QStringLiteral("MCLCLCLCL");
    // 50 on a 40 x 20 rectangle becomes 10: both ends are half circles, so the right-hand
    // arcs meet at (40, 10) without a join.
    QTest::newRow("radius clamped to half the shorter side") << 30u << 50.0f << QStringLiteral("MCLCCLC");
}

void TestRoundedPath::elementOrder()
{
    QFETCH(unsigned int, style);
    QFETCH(float, radius);
    QFETCH(QString, shape);
    const QPainterPath path = Brixel::bezierPathWithRoundedRect({0, 0, 40, 20}, radius, style);
    QCOMPARE(::shape(path), shape);
    QCOMPARE(path.boundingRect(), QRectF(0, 0, 40, 20));
}

void TestRoundedPath::arcsRunCounterClockwiseWithYUp()
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
    const QList<QPointF> expected = {{10, 25}, {15, 20}, {45, 20}, {50, 25}, {50, 45}, {45, 50}, {15, 50}, {10, 45}, {10, 25}};
    QCOMPARE(points, expected);
    // A negative radius is used as it is, so its corners bulge outwards.
    QVERIFY(Brixel::bezierPathWithRoundedRect({0, 0, 40, 20}, -5).boundingRect().width() > 40);
}

void TestRoundedPath::filledCapsuleLeavesItsCornersEmpty()
{
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(Brixel::bezierPathWithRoundedRect({0, 0, 40, 20}, 10), Qt::blue);
    }
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(39, 19).alpha(), 0);
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(1, 10), QColor(Qt::blue));
}

QTEST_GUILESS_MAIN(TestRoundedPath)
#include "tst_roundedpath.moc"
