// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNShading.h>

#include <BrixelTest.h>

#include <QImage>
#include <QPainter>
#include <QTest>

namespace {

// Paints \a shading into a transparent 40 x 100 image with y growing upward, as a bitmap
// drawn by the views is, and returns it as stored (row 0 at the top).
QImage paint(ZARNShading &shading)
{
    QImage image(40, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(0, image.height());
    painter.scale(1, -1);
    shading.drawShading(painter);
    return image;
}

// The colour at (x, y) with y counted upward from the image's bottom edge.
QColor colorAtYUp(const QImage &image, int x, int y)
{
    return image.pixelColor(x, image.height() - 1 - y);
}

ZARNShading blueToRed(QPointF start, QPointF end)
{
    ZARNShading shading;
    shading.setStartColorComponents({0, 0, 1, 1});
    shading.setEndColorComponents({1, 0, 0, 1});
    shading.setStartPoint(start);
    shading.setEndPoint(end);
    return shading;
}

} // namespace

class TestShading : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void interpolationIsLinearWithoutClamping_data();
    void interpolationIsLinearWithoutClamping();
    void newShadingPaintsNothingVisible();
    void verticalBandFromBottomToTop();
    void nothingOutsideTheAxis();
    void horizontalAxis();
    void equalColoursPaintOneFlatBand();
    void coincidingPointsPaintNothing();
};

void TestShading::interpolationIsLinearWithoutClamping_data()
{
    QTest::addColumn<float>("t");
    QTest::addColumn<float>("red");

    QTest::newRow("start") << 0.0f << 0.25f;
    QTest::newRow("middle") << 0.5f << 0.5f;
    QTest::newRow("end") << 1.0f << 0.75f;
    QTest::newRow("beyond the end is not clamped") << 2.0f << 1.25f;
}

void TestShading::interpolationIsLinearWithoutClamping()
{
    QFETCH(float, t);
    QFETCH(float, red);
    ZARNShading shading;
    shading.setStartColorComponents({0.25f, 1, 0, 0});
    shading.setEndColorComponents({0.75f, 0, 0, 1});
    QImage scratch(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&scratch);
    shading.drawShading(painter);
    QCOMPARE(shading.numColorComponents(), 4u);

    float out[4] = {-1, -1, -1, -1};
    ZARNShadingStandardShadingFunction(&shading, &t, out);
    QCOMPARE(out[0], red);
    QCOMPARE(out[1], 1.0f - t);
    QCOMPARE(out[3], t);
    ZARNShadingStandardShadingFunction(nullptr, &t, out);   // ignored, no crash
}

void TestShading::newShadingPaintsNothingVisible()
{
    ZARNShading shading;
    const QImage image = paint(shading);
    QCOMPARE(image.pixelColor(20, 50).alpha(), 0);
    QCOMPARE(shading.startPoint(), QPointF(0.5, 0));
    QCOMPARE(shading.endPoint(), QPointF(0.5, 1));
}

void TestShading::verticalBandFromBottomToTop()
{
    ZARNShading shading = blueToRed({20, 0}, {20, 100});
    const QImage image = paint(shading);
    QVERIFY(brixeltest::colorsClose(colorAtYUp(image, 5, 0), QColor(3, 0, 252), 4));
    QVERIFY(brixeltest::colorsClose(colorAtYUp(image, 35, 50), QColor(128, 0, 127), 4));
    QVERIFY(brixeltest::colorsClose(colorAtYUp(image, 20, 99), QColor(252, 0, 3), 4));
}

void TestShading::nothingOutsideTheAxis()
{
    ZARNShading shading = blueToRed({20, 30}, {20, 60});
    const QImage image = paint(shading);
    QCOMPARE(colorAtYUp(image, 20, 25).alpha(), 0);
    QCOMPARE(colorAtYUp(image, 20, 65).alpha(), 0);
    QCOMPARE(colorAtYUp(image, 0, 45).alpha(), 255);
    QCOMPARE(colorAtYUp(image, 39, 45).alpha(), 255);
}

void TestShading::horizontalAxis()
{
    ZARNShading shading = blueToRed({10, 50}, {30, 50});
    const QImage image = paint(shading);
    QVERIFY(brixeltest::colorsClose(colorAtYUp(image, 10, 0), QColor(Qt::blue), 16));
    QVERIFY(brixeltest::colorsClose(colorAtYUp(image, 29, 99), QColor(Qt::red), 16));
    QCOMPARE(colorAtYUp(image, 5, 50).alpha(), 0);
    QCOMPARE(colorAtYUp(image, 35, 50).alpha(), 0);
}

void TestShading::equalColoursPaintOneFlatBand()
{
    ZARNShading shading;
    shading.setStartColorComponents({0, 0.5f, 0, 1});
    shading.setEndColorComponents({0, 0.5f, 0, 1});
    shading.setStartPoint({0, 10});
    shading.setEndPoint({0, 90});
    const QImage image = paint(shading);
    const QColor green = QColor::fromRgbF(0, 0.5f, 0);
    for (int y : {10, 30, 50, 70, 89})
        QVERIFY2(brixeltest::colorsClose(colorAtYUp(image, 20, y), green, 1), qPrintable(QString::number(y)));
    QCOMPARE(colorAtYUp(image, 20, 5).alpha(), 0);
}

void TestShading::coincidingPointsPaintNothing()
{
    ZARNShading shading = blueToRed({20, 50}, {20, 50});
    const QImage image = paint(shading);
    for (int y = 0; y < image.height(); y += 10)
        QCOMPARE(image.pixelColor(20, y).alpha(), 0);
}

QTEST_MAIN(TestShading)
#include "tst_shading.moc"
