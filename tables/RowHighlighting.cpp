// SPDX-License-Identifier: LGPL-2.1-or-later
#include "RowHighlighting_p.h"

#include "../platform/BrixelNumbers.h"

#include "../drawing/NSBezierPath_Category.h"
#include "../platform/ZARNRect.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace BrixelPrivate {

namespace {

constexpr float dropCornerRadius = 3.0f;
constexpr float markerLineWidth = 2.0f;

// The rectangle moved in by \a dx on the left and right and by \a dy at the top and bottom,
// and then made \a shorter less high, in float as the geometry rules are.
ZARNRect insetRect(const ZARNRect &r, float dx, float dy, float shorter = 0.0f)
{
    return {r.x() + dx, r.y() + dy, r.width() - 2.0f * dx, r.height() - 2.0f * dy - shorter};
}

QRectF insetRect(const QRectF &rect, float dx, float dy, float shorter)
{
    return insetRect(ZARNRect::fromQRectF(rect), dx, dy, shorter).toQRectF();
}

QPen outlinePen(const QColor &colour, qreal width)
{
    return QPen(colour, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
}

QColor withAlpha(QColor colour, float alpha)
{
    colour.setAlphaF(alpha);
    return colour;
}

// Brushes, pens and the antialiasing hint last until the guard goes out of scope.
class PainterStateGuard
{
public:
    explicit PainterStateGuard(QPainter &painter) : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~PainterStateGuard() { m_painter.restore(); }
    PainterStateGuard(const PainterStateGuard &) = delete;
    PainterStateGuard &operator=(const PainterStateGuard &) = delete;

private:
    QPainter &m_painter;
};

// Strokes a drop marker at its own width. Drawing one also leaves the class-wide default line
// width at that width, as code written against the toolkit's paths expects after a drop
// marker; nothing here reads the default back.
void strokeMarker(QPainter &painter, const QPainterPath &path, const QColor &colour)
{
    Brixel::setBezierPathDefaultLineWidth(markerLineWidth);
    painter.strokePath(path, outlinePen(colour, markerLineWidth));
}

// Source pixels that half a target pixel spans at \a scale, plus one, at most \a extent.
int borderForScale(qreal scale, int extent)
{
    return int(std::min<qreal>(extent, 1.0 + std::ceil(0.5 / scale)));
}

// \a image inside a border \a borderX wide at the sides and \a borderY at the top and bottom,
// each border pixel a copy of the nearest edge pixel.
QImage withRepeatedEdges(const QImage &image, int borderX, int borderY)
{
    const QImage source = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int width = source.width();
    const int height = source.height();
    QImage padded(width + 2 * borderX, height + 2 * borderY, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < padded.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(source.constScanLine(std::clamp(y - borderY, 0, height - 1)));
        auto *to = reinterpret_cast<QRgb *>(padded.scanLine(y));
        std::fill_n(to, borderX, from[0]);
        std::copy_n(from, width, to + borderX);
        std::fill_n(to + borderX + width, borderX, from[width - 1]);
    }
    return padded;
}

// The highlight shape of \a shape grown by \a amount on every side (shrunk when negative),
// its corners kept concentric: the edges of a stroke \a amount * 2 wide with mitred corners.
QPainterPath grownHighlightPath(const ZARNRect &shape, ZARNTableView::HighlightStyle style, float amount)
{
    const ZARNRect grown = insetRect(shape, -amount, -amount);
    const float radius = highlightCornerRadius(shape.height(), style);
    if (radius > 0.0f)
        return Brixel::bezierPathWithRoundedRect(grown, std::max(0.0f, radius + amount));
    QPainterPath path;
    path.addRect(grown.toQRectF());
    return path;
}

} // namespace

QRectF selectionShapeRect(const QRectF &rowRect, bool hasCustomImage)
{
    return hasCustomImage ? rowRect : insetRect(rowRect, 0.5f, 0.5f, 1.0f);
}

qreal indentationOffset(int level, qreal indentationPerLevel, bool expandable)
{
    const int indent = Brixel::truncatedToInt32(double(level) * indentationPerLevel);
    // Items without a disclosure triangle sit further right than the triangles of their
    // siblings; the top level has no triangles to line up with.
    return (!expandable && level != 0) ? qreal(indent) + 16.0 : qreal(indent);
}

float highlightCornerRadius(float shapeHeight, ZARNTableView::HighlightStyle style)
{
    switch (style) {
    case ZARNTableView::HighlightStyle::Capsule:
        return 0.5f * shapeHeight;
    case ZARNTableView::HighlightStyle::RoundedRectangle:
        return 0.2f * shapeHeight;
    default:
        return 0.0f;
    }
}

QPainterPath highlightPath(const QRectF &rect, ZARNTableView::HighlightStyle style)
{
    return grownHighlightPath(ZARNRect::fromQRectF(rect), style, 0.0f);
}

QPainterPath highlightOutlineRing(const QRectF &rect, ZARNTableView::HighlightStyle style, float lineWidth)
{
    const ZARNRect shape = ZARNRect::fromQRectF(rect);
    QPainterPath ring = grownHighlightPath(shape, style, 0.5f * lineWidth);
    ring.addPath(grownHighlightPath(shape, style, -0.5f * lineWidth));
    ring.setFillRule(Qt::OddEvenFill);
    return ring;
}

void fillPathWithStretchedImage(QPainter &painter, const QPainterPath &path, const QRectF &rect, const QImage &image)
{
    if (image.isNull() || !(rect.width() > 0) || !(rect.height() > 0))
        return;
    // Antialiased edges sample up to half a target pixel outside the rectangle, and texture
    // brushes repeat; a border of repeated edge pixels keeps those samples from wrapping
    // round to the opposite edge.
    const qreal scaleX = rect.width() / image.width();
    const qreal scaleY = rect.height() / image.height();
    const int borderX = borderForScale(scaleX, image.width());
    const int borderY = borderForScale(scaleY, image.height());
    QBrush brush(withRepeatedEdges(image, borderX, borderY));
    brush.setTransform(QTransform::fromTranslate(rect.x() - borderX * scaleX, rect.y() - borderY * scaleY)
                           .scale(scaleX, scaleY));
    painter.fillPath(path, brush);
}

void drawRowHighlight(QPainter &painter, const QRectF &rowRect, ZARNTableView::HighlightStyle style, const SelectionColors &colors,
                      const QImage &gradient, const QImage &customImage)
{
    const bool hasCustomImage = !customImage.isNull();
    const QRectF shape = selectionShapeRect(rowRect, hasCustomImage);
    const QPainterPath path = highlightPath(shape, style);
    PainterStateGuard guard(painter);
    if (hasCustomImage) {
        fillPathWithStretchedImage(painter, path, shape, customImage);
        return;
    }
    // The fill goes over the outline and covers its inner half; the visible outline is the
    // outer half-pixel, which keeps the shape's edge crisp. The ring is filled rather than the
    // path stroked: the same pixels, several times faster.
    painter.fillPath(highlightOutlineRing(shape, style, 1.0f), colors.outline);
    if (colors.drawsGradient)
        fillPathWithStretchedImage(painter, path, shape, gradient);
    else
        painter.fillPath(path, colors.fill);
}

QRectF dropHighlightRect(const QRectF &rowRect, bool hasCustomImage)
{
    return hasCustomImage ? rowRect : insetRect(rowRect, 1.0f, 1.0f, 1.0f);
}

void drawDropHighlightOnRow(QPainter &painter, const QRectF &rect, bool rowSelected, const SelectionColors &colors)
{
    const QPainterPath path = Brixel::bezierPathWithRoundedRect(ZARNRect::fromQRectF(rect), dropCornerRadius);
    PainterStateGuard guard(painter);
    if (!rowSelected)
        painter.fillPath(path, withAlpha(colors.fill.toHsv(), 0.15f));
    const QColor stroke = rowSelected ? colors.outline : withAlpha(colors.outline.toRgb(), 0.9f);
    strokeMarker(painter, path, stroke);
}

void drawDropHighlightOnView(QPainter &painter, const QRectF &bounds, const SelectionColors &colors)
{
    const QColor colour = withAlpha(colors.outline.toRgb(), 0.9f);
    const qreal width = 2.0;
    const QRectF inner = bounds.adjusted(width, width, -width, -width);
    // Four strips inside the bounds, the corners belonging to the top and bottom strips.
    painter.fillRect(QRectF(bounds.left(), bounds.top(), bounds.width(), width), colour);
    painter.fillRect(QRectF(bounds.left(), bounds.bottom() - width, bounds.width(), width), colour);
    painter.fillRect(QRectF(bounds.left(), inner.top(), width, inner.height()), colour);
    painter.fillRect(QRectF(bounds.right() - width, inner.top(), width, inner.height()), colour);
}

std::optional<QLineF> dropLineBetweenRows(int upper, int lower, int rowCount, const std::function<QRectF(int)> &rectOfRow,
                                          const QRectF &bounds, qreal offset)
{
    ZARNRect base;
    float y = 0;
    if (upper < 0 && lower == 0) {
        base = insetRect(ZARNRect::fromQRectF(bounds), 1.0f, 1.0f);
        y = base.y();
    } else if (!rectOfRow) {
        return std::nullopt;
    } else if (upper >= 0 && upper < rowCount && upper < lower && lower < rowCount) {
        base = insetRect(ZARNRect::fromQRectF(rectOfRow(lower)), 1.0f, 0.0f);
        y = base.y();
    } else if (upper == rowCount - 1 && lower == rowCount) {
        base = insetRect(ZARNRect::fromQRectF(rectOfRow(upper)), 1.0f, 1.0f);
        y = base.maxY();
    } else {
        return std::nullopt;
    }
    return QLineF(float(offset) + base.x(), y, base.maxX(), y);
}

void drawDropMarker(QPainter &painter, const QLineF &line, const SelectionColors &colors)
{
    const qreal x = line.x1();
    const qreal y = line.y1();
    QPainterPath oval;
    oval.addEllipse(QRectF(x - 6.0, y - 3.0, 6.0, 6.0));
    QPainterPath stroke(QPointF(x, y));
    stroke.lineTo(line.x2(), y);

    PainterStateGuard guard(painter);
    painter.fillPath(oval, Qt::white);
    strokeMarker(painter, stroke, colors.outline);
    strokeMarker(painter, oval, colors.outline);
}

int textCellInset(qreal frameHeight)
{
    return Brixel::truncatedToInt32(frameHeight * 0.25);
}

QRect insetTextCellFrame(QRect frame, ZARNTableView::HighlightStyle style, int column, int columnCount)
{
    if (style != ZARNTableView::HighlightStyle::Capsule && style != ZARNTableView::HighlightStyle::RoundedRectangle)
        return frame;
    const int inset = textCellInset(frame.height());
    if (column == 0)
        frame.setLeft(frame.left() + inset);
    else if (column == columnCount - 1)
        frame.setWidth(frame.width() - inset);
    return frame;
}

DropPosition dropPositionInRow(const QRect &rowRect, int y, bool rowAcceptsDrops)
{
    // In 64 bits, so that no point and row can overflow the distances.
    const qint64 margin = qBound(2, qRound(qreal(rowRect.height()) / 5.5), 12);
    if (qint64(y) - rowRect.top() < margin)
        return DropPosition::AboveRow;
    if (qint64(rowRect.bottom()) - y < margin)
        return DropPosition::BelowRow;
    if (!rowAcceptsDrops)
        return y < rowRect.center().y() ? DropPosition::AboveRow : DropPosition::BelowRow;
    return DropPosition::OnRow;
}

} // namespace BrixelPrivate
