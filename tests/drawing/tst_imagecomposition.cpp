// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNImageComposition.h>
#include <Brixel/ZARNNSImageAdditions.h>

#include <BrixelTest.h>

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using Compose = std::function<QImage()>;
Q_DECLARE_METATYPE(Compose)

using brixeltest::filledImage;

namespace {

// Nine solid colours, one per third of the frame, indexed row by row from the visual top.
const QColor cellColours[9] = {Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow,
                               Qt::darkRed, Qt::darkGreen, Qt::darkBlue};

QImage nineCellFrame(QSize size)
{
    QImage frame = filledImage(size, Qt::transparent);
    QPainter painter(&frame);
    const QSize cell = size / 3;
    for (int index = 0; index < 9; ++index)
        painter.fillRect(QRect(QPoint(index % 3 * cell.width(), index / 3 * cell.height()), cell), cellColours[index]);
    return frame;
}

// Only the top third painted.
QImage redTopThird()
{
    QImage frame = filledImage({30, 30}, Qt::transparent);
    QPainter(&frame).fillRect(0, 0, 30, 10, Qt::red);
    return frame;
}

// Opaque, half covered and fully transparent pixels.
QImage threeCoverages()
{
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(10, 200, 30, 255));
    image.setPixelColor(1, 0, QColor(250, 250, 250, 128));
    image.setPixelColor(2, 0, QColor(0, 0, 0, 0));
    return image;
}

} // namespace

class TestImageComposition : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pixels_data();
    void pixels();
    void imageNamedLooksInTheRegisteredPrefix();
};

void TestImageComposition::pixels_data()
{
    QTest::addColumn<Compose>("compose");
    QTest::addColumn<QPoint>("point");   // in QImage rows
    QTest::addColumn<QColor>("expected");   // invalid: the result is null

    const auto nine = [](QSize frame, QSize target) {
        return Compose([=] { return Brixel::ZARNStretchedImageOverImage(nineCellFrame(frame), filledImage(target, Qt::white)); });
    };
    const auto badge = [](int alignment) {
        return Compose([=] { return Brixel::badgedImage(filledImage({30, 30}, Qt::white), filledImage({10, 10}, Qt::red), alignment); });
    };
    const QImage blue = filledImage({40, 20}, Qt::blue);
    const QColor white = Qt::white, red = Qt::red, null;

    // 30 x 30 on 100 x 100: 10-pixel corners, 80-pixel stretched middles.
    QTest::newRow("nine: corner keeps its size") << nine({30, 30}, {100, 100}) << QPoint(9, 9) << cellColours[0];
    QTest::newRow("nine: edge begins after the corner") << nine({30, 30}, {100, 100}) << QPoint(11, 1) << cellColours[1];
    QTest::newRow("nine: right edge") << nine({30, 30}, {100, 100}) << QPoint(95, 50) << cellColours[5];
    QTest::newRow("nine: centre") << nine({30, 30}, {100, 100}) << QPoint(50, 50) << cellColours[4];
    QTest::newRow("nine: bottom edge") << nine({30, 30}, {100, 100}) << QPoint(50, 95) << cellColours[7];
    // Reduced to 20 x 20 and cut into 6 x 6 pieces: the middle row is rows 6 to 13.
    QTest::newRow("nine: too tall, height ratio") << nine({30, 30}, {100, 20}) << QPoint(50, 10) << cellColours[4];
    // Halved to 30 x 7: 10-pixel columns, so x = 15 is the middle one, not the right corner.
    QTest::newRow("nine: only too wide, width ratio") << nine({60, 15}, {30, 100}) << QPoint(15, 50) << cellColours[4];
    // Too wide and too tall: the height ratio wins even though the width ratio is smaller,
    // the frame becomes 200 x 20, the 66-pixel corners overlap and the middle column
    // (-32 wide) draws nothing; the right-hand corner, drawn last, covers the overlap.
    QTest::newRow("nine: overlapping corners") << nine({300, 30}, {100, 20}) << QPoint(40, 2) << cellColours[2];
    QTest::newRow("nine: null frame") << Compose([] { return Brixel::ZARNStretchedImageOverImage({}, filledImage({4, 4}, Qt::red)); }) << QPoint() << null;

    const Compose over([] { return Brixel::ZARNStretchImageOverImage(redTopThird(), filledImage({60, 60}, Qt::blue)); });
    QTest::newRow("over: frame") << over << QPoint(30, 5) << red;
    QTest::newRow("over: target underneath") << over << QPoint(30, 40) << QColor(Qt::blue);
    QTest::newRow("over: null target") << Compose([] { return Brixel::ZARNStretchImageOverImage(filledImage({4, 4}, Qt::red), {}); }) << QPoint() << null;

    QTest::newRow("badge: top left") << badge(0) << QPoint(9, 9) << red;
    QTest::newRow("badge: unscaled") << badge(0) << QPoint(10, 10) << white;
    QTest::newRow("badge: centre") << badge(4) << QPoint(10, 10) << red;
    QTest::newRow("badge: bottom right") << badge(8) << QPoint(29, 29) << red;
    QTest::newRow("badge: unknown code at the origin") << badge(12) << QPoint(0, 29) << red;
    QTest::newRow("badge: null badge copies") << Compose([] { return Brixel::badgedImage(filledImage({3, 3}, Qt::blue), {}, 0); })
                                             << QPoint(1, 1) << QColor(Qt::blue);
    QTest::newRow("badge: null image") << Compose([] { return Brixel::badgedImage({}, filledImage({2, 2}, Qt::red), 0); }) << QPoint() << null;

    const Compose recoloured([] { return Brixel::ReplaceColorsInImage(threeCoverages(), QColor(0, 0, 255)); });
    QTest::newRow("recolour: opaque") << recoloured << QPoint(0, 0) << QColor(0, 0, 255);
    QTest::newRow("recolour: keeps partial alpha") << recoloured << QPoint(1, 0) << QColor(0, 0, 255, 128);
    QTest::newRow("recolour: keeps transparency") << recoloured << QPoint(2, 0) << QColor(Qt::transparent);
    QTest::newRow("recolour: null image") << Compose([] { return Brixel::ReplaceColorsInImage({}, Qt::red); }) << QPoint() << null;
    QTest::newRow("recolour: invalid colour") << Compose([] { return Brixel::ReplaceColorsInImage(filledImage({2, 2}, Qt::red), QColor()); })
                                              << QPoint() << null;

    // A 10 x 10 image is enlarged to 20 x 20 and centred on 40 x 20: columns 10 to 29.
    const Compose stacked([=] { return Brixel::imageByCompositingImages({blue, QImage(), filledImage({10, 10}, red)}); });
    QTest::newRow("stack: canvas left") << stacked << QPoint(9, 10) << QColor(Qt::blue);
    QTest::newRow("stack: enlarged from") << stacked << QPoint(10, 0) << red;
    QTest::newRow("stack: enlarged to") << stacked << QPoint(29, 19) << red;
    QTest::newRow("stack: canvas right") << stacked << QPoint(30, 10) << QColor(Qt::blue);
    QTest::newRow("stack: empty list") << Compose([] { return Brixel::imageByCompositingImages({}); }) << QPoint() << null;
}

void TestImageComposition::pixels()
{
    QFETCH(Compose, compose);
    QFETCH(QPoint, point);
    QFETCH(QColor, expected);
    const QImage image = compose();
    if (!expected.isValid())
        QVERIFY(image.isNull());
    else
        QVERIFY2(brixeltest::colorsClose(brixeltest::colorAt(image, point), expected, 24),
                 qPrintable(brixeltest::colorAt(image, point).name(QColor::HexArgb)));
}

void TestImageComposition::imageNamedLooksInTheRegisteredPrefix()
{
    QTemporaryDir folder;
    QVERIFY(filledImage({4, 4}, Qt::green).save(folder.filePath(QStringLiteral("leaf.png"))));
    const QString owner = QStringLiteral("TestOwner");
    QVERIFY(Brixel::imageNamed(QStringLiteral("leaf"), owner).isNull());
    Brixel::ZARNSetResourcePrefixForClass(owner, folder.path());
    QCOMPARE(Brixel::imageNamed(QStringLiteral("leaf"), owner).pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(Brixel::imageNamed(QStringLiteral("leaf.png"), owner).size(), QSize(4, 4));
    QVERIFY(Brixel::imageNamed(QStringLiteral("missing"), owner).isNull());
    QVERIFY(Brixel::imageNamed(QString(), owner).isNull());
    Brixel::ZARNSetResourcePrefixForClass(owner, QString());
    QVERIFY(Brixel::imageNamed(QStringLiteral("leaf"), owner).isNull());
}

QTEST_GUILESS_MAIN(TestImageComposition)
#include "tst_imagecomposition.moc"
