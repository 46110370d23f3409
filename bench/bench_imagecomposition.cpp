// SPDX-License-Identifier: LGPL-2.1-or-later
// Composing images off screen, beside one QPainter::drawImage that fills the same target.
#include "BenchHarness.h"

#include <Brixel/ZARNImageComposition.h>
#include <Brixel/ZARNNSImageAdditions.h>

#include <QGuiApplication>
#include <QPainter>

namespace {

QImage filled(QSize size, const QColor &colour)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

// One scaled draw of \a source over a new image of \a size: the least any composition of
// that size does.
QImage drawnOnce(const QImage &source, QSize size)
{
    QImage target(size, QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::transparent);
    QPainter painter(&target);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(target.rect()), source);
    return target;
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QSize fullHd(1920, 1080);
    const QImage frame = filled({30, 30}, QColor(200, 120, 40, 230));
    const QImage target = filled(fullHd, Qt::white);

    const double singleDraw = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(drawnOnce(frame, fullHd)); });
    const double stretched = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(Brixel::ZARNStretchedImageOverImage(frame, target)); });
    brixelbench::report("ZARNStretchedImageOverImage 30x30 to 1920x1080", stretched, "QPainter::drawImage, same target", singleDraw);

    QList<QImage> layers{target};
    for (int layer = 1; layer < 8; ++layer)
        layers << filled({160 * layer, 90 * layer}, QColor(30 * layer, 20, 200, 60));
    const double composed = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(Brixel::imageByCompositingImages(layers)); });
    const double singleFullDraw = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(drawnOnce(layers.last(), fullHd)); });
    brixelbench::report("imageByCompositingImages of 8, 1920x1080", composed, "QPainter::drawImage, same target", singleFullDraw);
    return 0;
}
