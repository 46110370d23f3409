// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNImageAndTextCell.h>
#include "tables/ImageAndTextLayout_p.h"

#include <BrixelTest.h>

#include <QLineEdit>
#include <QPainter>
#include <QStandardItemModel>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

using brixeltest::filledImage;

namespace {

// Red above, blue below: shows whether an image is drawn upright.
QImage twoBandImage(QSize size)
{
    QImage image = filledImage(size, Qt::blue);
    QPainter(&image).fillRect(0, 0, size.width(), size.height() / 2, Qt::red);
    return image;
}

QStyleOptionViewItem viewOption(const QRect &rect)
{
    QStyleOptionViewItem option;
    option.rect = rect;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.palette.setColor(QPalette::Base, Qt::white);
    return option;
}

/// \a cell painted into \a rect of a white 150 x 40 image, for the model's first item.
QImage painted(const ZARNTextFieldCell &cell, const QRect &rect, const QAbstractItemModel &model)
{
    QImage image = filledImage({150, 40}, Qt::white);
    QPainter painter(&image);
    cell.paint(&painter, viewOption(rect), model.index(0, 0));
    return image;
}

QRect coloured(const QImage &image, const QColor &color)
{
    return brixeltest::pixelBounds(image,
                                   [&](const QColor &pixel) { return brixeltest::colorsClose(pixel, color, 10); });
}

} // namespace

class TestImageAndTextCell : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void imageAndTitleRects_data()
    {
        QTest::addColumn<bool>("hasImage");
        QTest::addColumn<ZARNRect>("bounds");
        QTest::addColumn<ZARNSize>("imageSize");
        QTest::addColumn<ZARNRect>("imageRect");
        QTest::addColumn<ZARNRect>("titleRect");

        QTest::newRow("even difference") << true << ZARNRect{10, 20, 200, 20} << ZARNSize{16, 16}
                                         << ZARNRect{12, 22, 16, 16} << ZARNRect{31, 22, 179, 16};
        QTest::newRow("odd difference rounds up") << true << ZARNRect{0, 0, 100, 19} << ZARNSize{16, 16}
                                                  << ZARNRect{2, 2, 16, 16} << ZARNRect{21, 2, 79, 15};
        QTest::newRow("fractional") << true << ZARNRect{0.5f, 0.25f, 50, 17.5f} << ZARNSize{12.5f, 12}
                                    << ZARNRect{2.5f, 3.25f, 12.5f, 12} << ZARNRect{18.0f, 2.25f, 32.5f, 13.5f};
        QTest::newRow("image taller than the bounds") << true << ZARNRect{0, 10, 40, 10} << ZARNSize{20, 16}
                                                      << ZARNRect{2, 7, 20, 16} << ZARNRect{25, 12, 15, 6};
        QTest::newRow("no image") << false << ZARNRect{10, 20, 200, 20} << ZARNSize{16, 16} << ZARNRect{}
                                  << ZARNRect{10, 20, 200, 20};
    }

    void imageAndTitleRects()
    {
        QFETCH(bool, hasImage);
        QFETCH(ZARNRect, bounds);
        QFETCH(ZARNSize, imageSize);
        QFETCH(ZARNRect, imageRect);
        QFETCH(ZARNRect, titleRect);

        ZARNImageAndTextCell cell;
        if (hasImage)
            cell.setImage(filledImage({4, 4}, Qt::red));
        cell.setImageSize(imageSize);
        QCOMPARE(cell.imageRectForBounds(bounds), imageRect);
        QCOMPARE(cell.titleRectForBounds(bounds), titleRect);
    }

    void drawsTheImageArea_data()
    {
        QTest::addColumn<int>("scaling");
        QTest::addColumn<QRect>("red");
        QTest::addColumn<QRect>("blue");

        // The cell is at (10, 10), 100 x 20; the image area is 16 + 2 wide: (10, 10, 18, 20).
        // An 8 x 4 image, red above blue.
        QTest::newRow("proportional: 18 x 9 at y 16 (15.5 snapped to even)") << 0 << QRect(10, 16, 18, 4)
                                                                               << QRect(10, 21, 18, 4);
        QTest::newRow("stretched over the area") << 1 << QRect(10, 10, 18, 10) << QRect(10, 20, 18, 10);
        QTest::newRow("unscaled, centred") << 2 << QRect(15, 18, 8, 2) << QRect(15, 20, 8, 2);
    }

    void drawsTheImageArea()
    {
        QFETCH(int, scaling);
        QFETCH(QRect, red);
        QFETCH(QRect, blue);

        QStandardItemModel model;
        model.appendRow(new QStandardItem());
        ZARNImageAndTextCell cell;
        cell.setImage(twoBandImage({8, 4}));
        cell.setImageSize({16, 16});
        cell.setImageScaling(scaling);
        const QImage canvas = painted(cell, {10, 10, 100, 20}, model);
        // Smooth scaling blends the edge between the bands; the solid cores are where expected.
        const QRect drawnRed = coloured(canvas, Qt::red);
        const QRect drawnBlue = coloured(canvas, Qt::blue);
        QCOMPARE(drawnRed.left(), red.left());
        QCOMPARE(drawnRed.right(), red.right());
        QCOMPARE(drawnRed.top(), red.top());
        QCOMPARE(drawnBlue.bottom(), blue.bottom());
        // Upright: red above blue.
        QCOMPARE_LE(drawnRed.bottom(), drawnBlue.top());
    }

    void sizeAndEditorMakeRoomForTheImage_data()
    {
        QTest::addColumn<QImage>("cellImage");
        QTest::addColumn<QVariant>("decoration");
        QTest::addColumn<int>("extraWidth");
        QTest::addColumn<int>("editorShift");

        const QImage tenWide = filledImage({10, 6}, Qt::red);
        QImage twentyWideHiDpi = filledImage({40, 12}, Qt::red);
        twentyWideHiDpi.setDevicePixelRatio(2);
        QTest::newRow("no image") << QImage() << QVariant() << 4 << 3;
        QTest::newRow("the cell's image, own width") << tenWide << QVariant() << 14 << 13;
        QTest::newRow("own width in points") << twentyWideHiDpi << QVariant() << 24 << 23;
        QTest::newRow("the model's image wins") << tenWide << QVariant(filledImage({30, 6}, Qt::blue)) << 34 << 33;
        QTest::newRow("a pixmap from the model")
            << QImage() << QVariant(QPixmap::fromImage(filledImage({12, 6}, Qt::blue))) << 16 << 15;
    }

    void sizeAndEditorMakeRoomForTheImage()
    {
        QFETCH(QImage, cellImage);
        QFETCH(QVariant, decoration);
        QFETCH(int, extraWidth);
        QFETCH(int, editorShift);

        QStandardItemModel model;
        auto *item = new QStandardItem(u"Hamburg"_s);
        if (decoration.isValid())
            item->setData(decoration, Qt::DecorationRole);
        model.appendRow(item);
        auto *plainItem = new QStandardItem(u"Hamburg"_s);
        model.appendRow(plainItem);

        ZARNImageAndTextCell cell;
        cell.setImage(cellImage);
        ZARNTextFieldCell text;
        const QStyleOptionViewItem option = viewOption({20, 0, 200, 24});
        const QSize plain = text.sizeHint(option, model.index(1, 0));
        QCOMPARE(cell.sizeHint(option, model.index(0, 0)), plain + QSize(extraWidth, 0));

        QWidget parent;
        QLineEdit editor(&parent), expectedEditor(&parent);
        cell.updateEditorGeometry(&editor, option, model.index(0, 0));
        text.updateEditorGeometry(&expectedEditor, viewOption(option.rect.adjusted(editorShift, 0, 0, 0)),
                                  model.index(1, 0));
        QCOMPARE(editor.geometry(), expectedEditor.geometry());
    }

    void withoutAnImageDrawsAsATextCell()
    {
        QStandardItemModel model;
        model.appendRow(new QStandardItem(u"Same text"_s));
        ZARNImageAndTextCell cell;
        ZARNTextFieldCell text;
        for (ZARNTextFieldCell *each : {static_cast<ZARNTextFieldCell *>(&cell), &text}) {
            each->setDrawsBackground(true);
            each->setBackgroundColor(Qt::yellow);
        }
        QCOMPARE(painted(cell, {5, 5, 140, 20}, model), painted(text, {5, 5, 140, 20}, model));
    }

    void defaultsAndCopy()
    {
        ZARNImageAndTextCell cell;
        const float side = float(ZARNTextFieldCell::textCellSize(QString(), cell.font()).height() - 4.0);
        QCOMPARE(cell.imageSize(), (ZARNSize{side, side}));
        QCOMPARE(cell.imageScaling(), 0);

        const QImage image = filledImage({5, 5}, Qt::red);
        cell.setImage(image);
        cell.setImageScaling(5);
        cell.setImageSize({7, 9});
        cell.setTextColor(Qt::green);
        QObject owner;
        ZARNImageAndTextCell *copy = cell.copy(&owner);
        QCOMPARE(copy->parent(), &owner);
        QCOMPARE(copy->image().cacheKey(), image.cacheKey());
        QCOMPARE(copy->imageScaling(), 5);
        QCOMPARE(copy->imageSize(), (ZARNSize{7, 9}));
        QCOMPARE(copy->textColor(), QColor(Qt::green));
        // Setting the image leaves the layout size alone.
        copy->setImage(filledImage({50, 50}, Qt::blue));
        QCOMPARE(copy->imageSize(), (ZARNSize{7, 9}));
    }
};

QTEST_MAIN(TestImageAndTextCell)
#include "tst_imageandtextcell.moc"
