// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNShading.h>

#include <BrixelTest.h>

#include <QImage>
#include <QPainter>
#include <QTest>

Q_DECLARE_METATYPE(ZARNShading)

namespace {

ZARNShading shading(QPointF start, QPointF end, ZARNShading::Components from = {0, 0, 1, 1},
                    ZARNShading::Components to = {1, 0, 0, 1})
{
    ZARNShading shading;
    shading.setStartColorComponents(from);
    shading.setEndColorComponents(to);
    shading.setStartPoint(start);
    shading.setEndPoint(end);
    return shading;
}

} // namespace

class TestShading : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void interpolation_data();
    void interpolation();
    void painted_data();
    void painted();
};

void TestShading::interpolation_data()
{
    QTest::addColumn<float>("start");
    QTest::addColumn<float>("end");
    QTest::addColumn<float>("t");
    QTest::addColumn<float>("expected");

    // start * (1 - t) + end * t, or the same in double, gives 0.660000026f here.
    QTest::newRow("single precision, start + (end - start) * t") << 0.3f << 0.9f << 0.6f << 0.659999967f;
    QTest::newRow("beyond the end is not clamped") << 0.25f << 0.75f << 2.0f << 1.25f;
}

void TestShading::interpolation()
{
    QFETCH(float, start);
    QFETCH(float, end);
    QFETCH(float, t);
    QFETCH(float, expected);
    ZARNShading shading;
    shading.setStartColorComponents({start, 1, 0, 0});
    shading.setEndColorComponents({end, 0, 0, 1});
    QImage scratch(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&scratch);
    shading.drawShading(painter);   // sets the number of components

    float out[4] = {-1, -1, -1, -1};
    Brixel::ZARNShadingStandardShadingFunction(&shading, &t, out);
    QVERIFY2(out[0] == expected, qPrintable(QString::number(out[0], 'g', 9)));   // exactly, not fuzzily
    QCOMPARE(out[3], t);
    Brixel::ZARNShadingStandardShadingFunction(nullptr, &t, out);   // ignored, no crash
}

void TestShading::painted_data()
{
    QTest::addColumn<ZARNShading>("shading");
    QTest::addColumn<QPoint>("point");   // y counted upward from the image's bottom edge
    QTest::addColumn<QColor>("expected");

    const QColor none = Qt::transparent;
    const ZARNShading::Components green = {0, 0.5f, 0, 1};
    QTest::newRow("new shading paints nothing visible") << ZARNShading() << QPoint(20, 0) << none;
    QTest::newRow("vertical: start at the bottom") << shading({20, 0}, {20, 100}) << QPoint(5, 0) << QColor(1, 0, 254);
    QTest::newRow("vertical: halfway") << shading({20, 0}, {20, 100}) << QPoint(35, 50) << QColor(129, 0, 126);
    QTest::newRow("short axis: below the start") << shading({20, 30}, {20, 60}) << QPoint(20, 25) << none;
    QTest::newRow("short axis: above the end") << shading({20, 30}, {20, 60}) << QPoint(20, 65) << none;
    QTest::newRow("short axis: band spans the width") << shading({20, 30}, {20, 60}) << QPoint(0, 45) << QColor(132, 0, 123);
    QTest::newRow("horizontal: band spans the height") << shading({10, 50}, {30, 50}) << QPoint(10, 0) << QColor(6, 0, 249);
    QTest::newRow("equal colours: flat at the start") << shading({0, 10}, {0, 90}, green, green) << QPoint(20, 10) << QColor(0, 128, 0);
    QTest::newRow("equal colours: flat at the end") << shading({0, 10}, {0, 90}, green, green) << QPoint(20, 89) << QColor(0, 128, 0);
    QTest::newRow("coinciding points paint nothing") << shading({20, 50}, {20, 50}) << QPoint(20, 50) << none;
}

// Paints into a transparent 40 x 100 image with y growing upward, as a bitmap drawn by the
// views is.
void TestShading::painted()
{
    QFETCH(ZARNShading, shading);
    QFETCH(QPoint, point);
    QFETCH(QColor, expected);
    QImage image(40, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.translate(0, image.height());
        painter.scale(1, -1);
        shading.drawShading(painter);
    }
    const QColor actual = image.pixelColor(point.x(), image.height() - 1 - point.y());
    QVERIFY2(brixeltest::colorsClose(actual, expected, 4), qPrintable(actual.name(QColor::HexArgb)));
}

QTEST_MAIN(TestShading)
#include "tst_shading.moc"
