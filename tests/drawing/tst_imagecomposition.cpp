// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNImageComposition.h>
#include <Brixel/ZARNNSImageAdditions.h>

#include <BrixelTest.h>

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Nine solid colours, one per third of the frame, indexed row by row from the visual top.
const QColor cellColours[9] = {Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow,
                               Qt::darkRed, Qt::darkGreen, Qt::darkBlue};

QImage nineCellFrame(int width, int height)
{
    QImage frame(width, height, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&frame);
    for (int cell = 0; cell < 9; ++cell) {
        const int column = cell % 3;
        const int row = cell / 3;
        painter.fillRect(QRect(column * width / 3, row * height / 3, width / 3, height / 3), cellColours[cell]);
    }
    return frame;
}

QImage solid(int width, int height, const QColor &colour)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

} // namespace

class TestImageComposition : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nineSliceCells_data();
    void nineSliceCells();
    void tallFrameIsReducedByTheHeightRatio();
    void wideFrameIsReducedByTheWidthRatio();
    void overlappingCornersSkipTheMiddle();
    void stretchOverKeepsTheTargetUnderneath();
    void nullInputs();
    void badgeAlignment_data();
    void badgeAlignment();
    void recolouringKeepsAlpha();
    void compositingFitsAndCentres();
    void imageNamedLooksInTheRegisteredPrefix();
};

void TestImageComposition::nineSliceCells_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("cell");

    // A 30 x 30 frame on a 100 x 100 target: 10-pixel corners, 80-pixel stretched middles.
    QTest::newRow("top-left corner") << QPoint(5, 5) << 0;
    QTest::newRow("top edge") << QPoint(50, 5) << 1;
    QTest::newRow("top-right corner") << QPoint(95, 5) << 2;
    QTest::newRow("left edge") << QPoint(5, 50) << 3;
    QTest::newRow("centre") << QPoint(50, 50) << 4;
    QTest::newRow("right edge") << QPoint(95, 50) << 5;
    QTest::newRow("bottom-left corner") << QPoint(5, 95) << 6;
    QTest::newRow("bottom edge") << QPoint(50, 95) << 7;
    QTest::newRow("bottom-right corner") << QPoint(95, 95) << 8;
    QTest::newRow("corner keeps its size") << QPoint(9, 9) << 0;
    QTest::newRow("edge begins after the corner") << QPoint(11, 1) << 1;
}

void TestImageComposition::nineSliceCells()
{
    QFETCH(QPoint, point);
    QFETCH(int, cell);
    const QImage stretched = ZARNStretchedImageOverImage(nineCellFrame(30, 30), solid(100, 100, Qt::white));
    QCOMPARE(stretched.size(), QSize(100, 100));
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(point), cellColours[cell], 8));
}

void TestImageComposition::tallFrameIsReducedByTheHeightRatio()
{
    // 30 x 30 on 100 x 20: reduced to 20 x 20, cut into 6 x 6 pieces, so the middle row of
    // the result is 20 - 12 = 8 pixels high, at rows 6 to 13.
    const QImage stretched = ZARNStretchedImageOverImage(nineCellFrame(30, 30), solid(100, 20, Qt::white));
    QCOMPARE(stretched.size(), QSize(100, 20));
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(50, 10), cellColours[4], 24));
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(50, 2), cellColours[1], 24));
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(50, 17), cellColours[7], 24));
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(97, 2), cellColours[2], 24));
}

void TestImageComposition::wideFrameIsReducedByTheWidthRatio()
{
    // 40 x 10 on 20 x 100: halved to 20 x 5, so pieces are 6 x 1 and the corners 6 wide.
    const QImage stretched = ZARNStretchedImageOverImage(nineCellFrame(40, 10), solid(20, 100, Qt::white));
    QCOMPARE(stretched.size(), QSize(20, 100));
    QCOMPARE(stretched.pixelColor(10, 50).alpha(), 255);
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(2, 0), cellColours[0], 48));
}

void TestImageComposition::overlappingCornersSkipTheMiddle()
{
    // 300 x 30 on 100 x 20: the height ratio wins, the frame becomes 200 x 20, the corners
    // are 66 wide and overlap, and the middle column (-32 wide) draws nothing.
    const QImage stretched = ZARNStretchedImageOverImage(nineCellFrame(300, 30), solid(100, 20, Qt::white));
    QCOMPARE(stretched.size(), QSize(100, 20));
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(2, 2), cellColours[0], 24));
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(97, 2), cellColours[2], 24));
    // The right-hand corner is drawn last in its row, so it covers the overlap.
    QVERIFY(brixeltest::colorsClose(stretched.pixelColor(40, 2), cellColours[2], 24));
}

void TestImageComposition::stretchOverKeepsTheTargetUnderneath()
{
    QImage frame(30, 30, QImage::Format_ARGB32_Premultiplied);
    frame.fill(Qt::transparent);
    QPainter(&frame).fillRect(0, 0, 30, 10, Qt::red);   // only the top third is painted
    const QImage result = ZARNStretchImageOverImage(frame, solid(60, 60, Qt::blue));
    QCOMPARE(result.pixelColor(30, 5), QColor(Qt::red));
    QCOMPARE(result.pixelColor(30, 40), QColor(Qt::blue));
}

void TestImageComposition::nullInputs()
{
    QVERIFY(ZARNStretchedImageOverImage({}, solid(4, 4, Qt::red)).isNull());
    QVERIFY(ZARNStretchImageOverImage(solid(4, 4, Qt::red), {}).isNull());
    QVERIFY(ReplaceColorsInImage({}, Qt::red).isNull());
    QVERIFY(ReplaceColorsInImage(solid(2, 2, Qt::red), QColor()).isNull());
    QVERIFY(badgedImage({}, solid(2, 2, Qt::red), 0).isNull());
    QCOMPARE(badgedImage(solid(3, 3, Qt::blue), {}, 0).pixelColor(1, 1), QColor(Qt::blue));
    QVERIFY(imageByCompositingImages({}).isNull());
}

void TestImageComposition::badgeAlignment_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QPoint>("badgeTopLeft");   // in QImage rows

    QTest::newRow("top left") << 0 << QPoint(0, 0);
    QTest::newRow("top centre") << 1 << QPoint(10, 0);
    QTest::newRow("top right") << 2 << QPoint(20, 0);
    QTest::newRow("middle left") << 3 << QPoint(0, 10);
    QTest::newRow("centre") << 4 << QPoint(10, 10);
    QTest::newRow("middle right") << 5 << QPoint(20, 10);
    QTest::newRow("bottom left") << 6 << QPoint(0, 20);
    QTest::newRow("bottom centre") << 7 << QPoint(10, 20);
    QTest::newRow("bottom right") << 8 << QPoint(20, 20);
    QTest::newRow("unknown code stays at the origin") << 12 << QPoint(0, 20);
}

void TestImageComposition::badgeAlignment()
{
    QFETCH(int, alignment);
    QFETCH(QPoint, badgeTopLeft);
    const QImage badged = badgedImage(solid(30, 30, Qt::white), solid(10, 10, Qt::red), alignment);
    QCOMPARE(badged.size(), QSize(30, 30));
    const QRect badge(badgeTopLeft, QSize(10, 10));
    QCOMPARE(badged.pixelColor(badge.topLeft()), QColor(Qt::red));
    QCOMPARE(badged.pixelColor(badge.bottomRight()), QColor(Qt::red));
    int redPixels = 0;
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x)
            redPixels += badged.pixelColor(x, y) == QColor(Qt::red);
    QCOMPARE(redPixels, 100);
}

void TestImageComposition::recolouringKeepsAlpha()
{
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(10, 200, 30, 255));
    image.setPixelColor(1, 0, QColor(250, 250, 250, 128));
    image.setPixelColor(2, 0, QColor(0, 0, 0, 0));
    const QImage recoloured = ReplaceColorsInImage(image, QColor(0, 0, 255));
    QCOMPARE(recoloured.pixelColor(0, 0), QColor(0, 0, 255));
    QVERIFY(brixeltest::colorsClose(recoloured.pixelColor(1, 0), QColor(0, 0, 255, 128), 1));
    QCOMPARE(recoloured.pixelColor(2, 0).alpha(), 0);
}

void TestImageComposition::compositingFitsAndCentres()
{
    const QImage canvas = solid(40, 20, Qt::blue);
    QCOMPARE(imageByCompositingImages({canvas}), canvas);
    // A 10 x 10 image is enlarged to 20 x 20 and centred: columns 10 to 29.
    const QImage stacked = imageByCompositingImages({canvas, solid(10, 10, Qt::red)});
    QCOMPARE(stacked.size(), QSize(40, 20));
    QCOMPARE(stacked.pixelColor(5, 10), QColor(Qt::blue));
    QCOMPARE(stacked.pixelColor(10, 0), QColor(Qt::red));
    QCOMPARE(stacked.pixelColor(29, 19), QColor(Qt::red));
    QCOMPARE(stacked.pixelColor(30, 10), QColor(Qt::blue));
}

void TestImageComposition::imageNamedLooksInTheRegisteredPrefix()
{
    QTemporaryDir folder;
    QVERIFY(solid(4, 4, Qt::green).save(folder.filePath(QStringLiteral("leaf.png"))));
    const QString owner = QStringLiteral("TestOwner");
    QVERIFY(imageNamed(QStringLiteral("leaf"), owner).isNull());
    ZARNSetResourcePrefixForClass(owner, folder.path());
    QCOMPARE(imageNamed(QStringLiteral("leaf"), owner).pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(imageNamed(QStringLiteral("leaf.png"), owner).size(), QSize(4, 4));
    QVERIFY(imageNamed(QStringLiteral("missing"), owner).isNull());
    QVERIFY(imageNamed(QString(), owner).isNull());
    ZARNSetResourcePrefixForClass(owner, QString());
    QVERIFY(imageNamed(QStringLiteral("leaf"), owner).isNull());
    test(QImage());
}

QTEST_GUILESS_MAIN(TestImageComposition)
#include "tst_imagecomposition.moc"
