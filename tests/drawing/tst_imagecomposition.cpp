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
    void pixels_data()
    {
        QTest::addColumn<Compose>("compose");
        QTest::addColumn<QPoint>("point");   // in QImage rows
        QTest::addColumn<QColor>("expected");   // invalid: the result is null

        const auto row = [](const char *name, const Compose &compose, QPoint point, const QColor &expected) {
            QTest::newRow(name) << compose << point << expected;
        };
        const auto nine = [](QSize frame, QSize target) {
            return Compose([=] {
                return Brixel::ZARNStretchedImageOverImage(nineCellFrame(frame), filledImage(target, Qt::white));
            });
        };
        const auto badge = [](int alignment) {
            return Compose([=] {
                return Brixel::badgedImage(filledImage({30, 30}, Qt::white), filledImage({10, 10}, Qt::red), alignment);
            });
        };
        const QImage blue = filledImage({40, 20}, Qt::blue);
        const QColor white = Qt::white, red = Qt::red, null;

        // 30 x 30 on 100 x 100: 10-pixel corners, 80-pixel stretched middles.
        row("nine: corner keeps its size", nine({30, 30}, {100, 100}), {9, 9}, cellColours[0]);
        row("nine: edge begins after the corner", nine({30, 30}, {100, 100}), {11, 1}, cellColours[1]);
        row("nine: right edge", nine({30, 30}, {100, 100}), {95, 50}, cellColours[5]);
        row("nine: centre", nine({30, 30}, {100, 100}), {50, 50}, cellColours[4]);
        row("nine: bottom edge", nine({30, 30}, {100, 100}), {50, 95}, cellColours[7]);
        // Reduced to 20 x 20 and cut into 6 x 6 pieces: the middle row is rows 6 to 13.
        row("nine: too tall, height ratio", nine({30, 30}, {100, 20}), {50, 10}, cellColours[4]);
        // Halved to 30 x 7: 10-pixel columns, so x = 15 is the middle one, not the right corner.
        row("nine: only too wide, width ratio", nine({60, 15}, {30, 100}), {15, 50}, cellColours[4]);
        // Too wide and too tall: the height ratio wins even though the width ratio is smaller,
        // the frame becomes 200 x 20, the 66-pixel corners overlap and the middle column
        // (-32 wide) draws nothing; the right-hand corner, drawn last, covers the overlap.
        row("nine: overlapping corners", nine({300, 30}, {100, 20}), {40, 2}, cellColours[2]);
        row("nine: null frame", [] { return Brixel::ZARNStretchedImageOverImage({}, filledImage({4, 4}, Qt::red)); },
            {}, null);

        const Compose over(
            [] { return Brixel::ZARNStretchImageOverImage(redTopThird(), filledImage({60, 60}, Qt::blue)); });
        row("over: frame from the top row", over, {30, 0}, red);
        row("over: target underneath", over, {30, 40}, Qt::blue);
        row("over: null target", [] { return Brixel::ZARNStretchImageOverImage(filledImage({4, 4}, Qt::red), {}); }, {},
            null);

        row("badge: top left", badge(0), {9, 9}, red);
        row("badge: unscaled", badge(0), {10, 10}, white);
        row("badge: centre", badge(4), {10, 10}, red);
        row("badge: bottom right", badge(8), {29, 29}, red);
        row("badge: unknown code at the origin", badge(12), {0, 29}, red);
        row("badge: null badge copies", [] { return Brixel::badgedImage(filledImage({3, 3}, Qt::blue), {}, 0); },
            {1, 1}, Qt::blue);
        row("badge: null image", [] { return Brixel::badgedImage({}, filledImage({2, 2}, Qt::red), 0); }, {}, null);

        const Compose recoloured([] { return Brixel::ReplaceColorsInImage(threeCoverages(), QColor(0, 0, 255)); });
        row("recolour: opaque", recoloured, {0, 0}, QColor(0, 0, 255));
        row("recolour: keeps partial alpha", recoloured, {1, 0}, QColor(0, 0, 255, 128));
        row("recolour: keeps transparency", recoloured, {2, 0}, Qt::transparent);
        row("recolour: null image", [] { return Brixel::ReplaceColorsInImage({}, Qt::red); }, {}, null);
        row("recolour: invalid colour", [] { return Brixel::ReplaceColorsInImage(filledImage({2, 2}, Qt::red), {}); },
            {}, null);

        // A 10 x 10 image is enlarged to 20 x 20 and centred on 40 x 20: columns 10 to 29.
        const Compose stacked([=] { return Brixel::imageByCompositingImages({blue, {}, filledImage({10, 10}, red)}); });
        row("stack: canvas left", stacked, {9, 10}, Qt::blue);
        row("stack: enlarged from", stacked, {10, 0}, red);
        row("stack: enlarged to", stacked, {29, 19}, red);
        row("stack: canvas right", stacked, {30, 10}, Qt::blue);
        row("stack: empty list", [] { return Brixel::imageByCompositingImages({}); }, {}, null);
    }

    void pixels()
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

    void imageNamedLooksInTheRegisteredPrefix()
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
};

QTEST_GUILESS_MAIN(TestImageComposition)
#include "tst_imagecomposition.moc"
