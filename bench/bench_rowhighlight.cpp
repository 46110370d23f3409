// SPDX-License-Identifier: LGPL-2.1-or-later
// Drawing one selected row, beside Qt's own selection fill of the same row.
#include "BenchHarness.h"

#include "tables/HighlightGradientCache_p.h"
#include "tables/RowHighlighting_p.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QRectF row(0, 0, 1000, 20);
    const QColor highlight = QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
    const QBrush qtSelection = QGuiApplication::palette().brush(QPalette::Active, QPalette::Highlight);

    BrixelPrivate::HighlightGradientCache cache;
    const QImage gradient = cache.image(row.height(), highlight);
    const BrixelPrivate::SelectionColors colors{highlight, highlight.darker(125), true};

    QImage target(row.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    target.fill(Qt::white);
    QPainter painter(&target);

    const double qtFill = brixelbench::nanosecondsPerCall([&] { painter.fillRect(row, qtSelection); });
    const double capsule = brixelbench::nanosecondsPerCall(
        [&] { BrixelPrivate::drawRowHighlight(painter, row, ZARNTableView::HighlightStyle::Capsule, colors, gradient, QImage()); });
    brixelbench::report("drawRowHighlight capsule+gradient 1000x20", capsule, "QPainter::fillRect, palette highlight", qtFill);

    const QRectF shape = BrixelPrivate::selectionShapeRect(row, false);
    const QPainterPath path = BrixelPrivate::highlightPath(shape, ZARNTableView::HighlightStyle::Capsule);
    const double clipped = brixelbench::nanosecondsPerCall([&] {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipPath(path);
        painter.drawImage(shape, gradient, gradient.rect());
        painter.restore();
    });
    const double textured = brixelbench::nanosecondsPerCall([&] {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        BrixelPrivate::fillPathWithStretchedImage(painter, path, shape, gradient);
        painter.restore();
    });
    brixelbench::report("capsule gradient fill: stretched texture", textured, "capsule gradient fill: clip + drawImage", clipped);

    const double flat = brixelbench::nanosecondsPerCall(
        [&] { BrixelPrivate::drawRowHighlight(painter, row, ZARNTableView::HighlightStyle::Capsule, {highlight, highlight.darker(125), false}, gradient, QImage()); });
    brixelbench::report("drawRowHighlight capsule+flat fill 1000x20", flat, "QPainter::fillRect, palette highlight", qtFill);

    // A fractional row height rebuilds the image on every request.
    const double rebuild = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(cache.image(19.5, highlight)); });
    brixelbench::report("HighlightGradientCache::image rebuild 64x20", rebuild);
    return 0;
}
