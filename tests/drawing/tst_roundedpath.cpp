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
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement: word += QLatin1Char('M'); break;
        case QPainterPath::LineToElement: word += QLatin1Char('L'); break;
        case QPainterPath::CurveToElement: word += QLatin1Char('C'); break;
        case QPainterPath::CurveToDataElement: break;
        }
    }
    return word;
}

// Where each element ends: the point of a move or line, the last point of a curve.
QList<QPointF> endPoints(const QPainterPath &path)
{
    QList<QPointF> points;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.type == QPainterPath::CurveToElement)
            points << QPointF(path.elementAt(i + 2));
        else if (element.type != QPainterPath::CurveToDataElement)
            points << QPointF(element);
    }
    return points;
}

} // namespace

class TestRoundedPath : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void elementOrder_data();
    void elementOrder();
    void arcsRunCounterClockwiseWithYUp();
    void radiusIsClampedToHalfTheShorterSide();
    void filledCapsuleLeavesItsCornersEmpty();
    void defaultLineWidth();
};

void TestRoundedPath::elementOrder_data()
{
    QTest::addColumn<unsigned int>("style");
    QTest::addColumn<QString>("shape");

    // Each 90-degree arc is one cubic curve; joins between arcs appear only where the arc
    // ends and the next begins at different points.
    QTest::newRow("no corner") << 0u << QStringLiteral("MLLLL");
    QTest::newRow("bit 1 alone means nothing") << 1u << QStringLiteral("MLLLL");
    QTest::newRow("left and right without an edge") << 6u << QStringLiteral("MLLLL");
    QTest::newRow("top and bottom without a side") << 24u << QStringLiteral("MLLLL");
    QTest::newRow("bottom-left only") << 18u << QStringLiteral("MCLLLL");
    QTest::newRow("top-right only") << 12u << QStringLiteral("MLLCLL");
    QTest::newRow("all four") << 30u << QStringLiteral("MCLCLCLCL");
    QTest::newRow("bits above 16 ignored") << (30u | 32u | 1u) << QStringLiteral("MCLCLCLCL");
}

void TestRoundedPath::elementOrder()
{
    QFETCH(unsigned int, style);
    QFETCH(QString, shape);
    QCOMPARE(::shape(bezierPathWithRoundedRect({0, 0, 40, 30}, 5, style)), shape);
}

void TestRoundedPath::arcsRunCounterClockwiseWithYUp()
{
    // Bottom-left arc from 180 to 270 degrees starts on the left edge (x, y + r) and ends on
    // the bottom edge (x + r, y); then a straight join runs along the bottom, and closing
    // the path draws the left edge.
    const QList<QPointF> points = endPoints(bezierPathWithRoundedRect({10, 20, 40, 30}, 5));
    const QList<QPointF> expected = {{10, 25}, {15, 20}, {45, 20}, {50, 25}, {50, 45}, {45, 50}, {15, 50}, {10, 45}, {10, 25}};
    QCOMPARE(points, expected);
}

void TestRoundedPath::radiusIsClampedToHalfTheShorterSide()
{
    // A radius of 50 on a 40 x 20 rectangle becomes 10: both ends are half circles, so the
    // right-hand arcs meet at (40, 10) without a join.
    const QPainterPath path = bezierPathWithRoundedRect({0, 0, 40, 20}, 50);
    QCOMPARE(shape(path), QStringLiteral("MCLCCLC"));
    QCOMPARE(path.boundingRect(), QRectF(0, 0, 40, 20));
    // A negative radius is used as it is, so its corners bulge outwards.
    QVERIFY(bezierPathWithRoundedRect({0, 0, 40, 20}, -5).boundingRect().width() > 40);
}

void TestRoundedPath::filledCapsuleLeavesItsCornersEmpty()
{
    QImage image(40, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(bezierPathWithRoundedRect({0, 0, 40, 20}, 10), Qt::blue);
    }
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(39, 19).alpha(), 0);
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(1, 10), QColor(Qt::blue));
}

void TestRoundedPath::defaultLineWidth()
{
    QCOMPARE(bezierPathDefaultLineWidth(), 1.0f);
    setBezierPathDefaultLineWidth(2.5f);
    QCOMPARE(bezierPathDefaultLineWidth(), 2.5f);
    setBezierPathDefaultLineWidth(1.0f);
}

QTEST_GUILESS_MAIN(TestRoundedPath)
#include "tst_roundedpath.moc"
