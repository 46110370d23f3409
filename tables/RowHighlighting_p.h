// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNTableView.h"
#include <Brixel/brixel_export.h>

#include <QColor>
#include <QImage>
#include <QLineF>
#include <QPainterPath>
#include <QRect>
#include <QRectF>

#include <functional>
#include <optional>

class QPainter;

/**
 * \file
 * The drawing of selected rows and of drop targets in table and outline views, as plain
 * functions of rectangles, colours and images, so the views only gather their inputs.
 *
 * All rectangles are in the view's viewport coordinates, y growing downward. Shapes are drawn
 * antialiased; each function leaves the painter's state as it found it.
 *
 * \code
 * const BrixelPrivate::SelectionColors colors{selectionColor(view), selectionOutlineColor(view),
 *                                      selectionShouldDrawGradient(view)};
 * for (int row : selectedRows)
 *     BrixelPrivate::drawRowHighlight(painter, rowRect(row), view->highlightStyle(), colors,
 *                              gradientCache.image(rowHeight, systemHighlight), QImage());
 * \endcode
 */

namespace BrixelPrivate {

/**
 * The rectangle a row's selection shape fills: \a rowRect inset by 0.5 on every side, then
 * 1.0 less high, so that 1-pixel outlines fall on whole pixels. With a custom highlight image
 * the row's rectangle unchanged. Arithmetic is in float; rows less than 2 high give a
 * negative height, which draws nothing.
 */
BRIXEL_AUTOTEST_EXPORT QRectF selectionShapeRect(const QRectF &rowRect, bool hasCustomImage);

/**
 * How far an outline view moves a row's selection shape right when the highlight follows the
 * indentation: \a level times \a indentationPerLevel, truncated to a whole number, plus 16
 * for an item that cannot be expanded below the top level (it has no disclosure triangle).
 * The caller moves the rectangle's left edge by the offset and narrows it as much. A product
 * that is NaN or outside the 32-bit range counts as -2147483648.
 */
BRIXEL_AUTOTEST_EXPORT qreal indentationOffset(int level, qreal indentationPerLevel, bool expandable);

/**
 * The corner radius of a highlight shape \a shapeHeight high: 0.5 times the height for
 * style 1 (capsule), 0.2 times for style 2 (rounded rectangle), 0 for every other style.
 */
BRIXEL_AUTOTEST_EXPORT float highlightCornerRadius(float shapeHeight, ZARNTableView::HighlightStyle style);

/// The outline of a selected row's shape in \a rect: a rectangle, or for styles 1 and 2 a
/// rectangle whose corners are rounded by highlightCornerRadius().
BRIXEL_AUTOTEST_EXPORT QPainterPath highlightPath(const QRectF &rect, ZARNTableView::HighlightStyle style);

/**
 * The area a stroke \a lineWidth wide along highlightPath() covers, with mitred corners, as a
 * path to fill: the shape grown by half the width on every side, less the shape shrunk by as
 * much, corners kept concentric. Filling it gives the stroke's pixels at a fraction of the
 * cost of stroking.
 */
BRIXEL_AUTOTEST_EXPORT QPainterPath highlightOutlineRing(const QRectF &rect, ZARNTableView::HighlightStyle style, float lineWidth);

/// The colours a view draws its selection with; see selectionColor() and friends.
struct SelectionColors
{
    QColor fill;          ///< the flat fill, and the fill of drop targets
    QColor outline;       ///< the outline of selected rows and drop targets
    bool drawsGradient;   ///< fill selected rows with the gradient image instead of \c fill
};

/**
 * Draws one selected row (and a context-menu highlight) in \a style. Without a custom image
 * the shape gets an outline 1 wide in the outline colour (highlightOutlineRing()), then is
 * filled with \a gradient stretched over it (when colors.drawsGradient) or with the flat
 * fill; the fill covers the inner half of the outline, which is intended. A non-null \a customImage replaces all of
 * that: it is stretched over the row's rectangle, inside the shape, with no outline.
 *
 * An outline view whose highlight follows the indentation passes \a rowRect already indented
 * (see indentationOffset()). A null \a gradient leaves the shape's inside unfilled.
 */
BRIXEL_AUTOTEST_EXPORT void drawRowHighlight(QPainter &painter, const QRectF &rowRect, ZARNTableView::HighlightStyle style,
                                    const SelectionColors &colors, const QImage &gradient,
                                    const QImage &customImage);

/**
 * Fills \a path with \a image stretched from its whole extent over \a rect: what clipping to
 * the path and drawing the image into the rectangle shows, at a fraction of the cost. Edge
 * pixels are covered as far as the path covers them, where Qt's clip either cuts whole pixels
 * (rectangles) or weakens the image's own antialiased edge a second time (curves); they take
 * the colour of the image's nearest edge pixel. A null image or an empty rectangle draws
 * nothing.
 */
BRIXEL_AUTOTEST_EXPORT void fillPathWithStretchedImage(QPainter &painter, const QPainterPath &path, const QRectF &rect,
                                              const QImage &image);

/**
 * The rectangle a drop onto a row is drawn in: \a rowRect inset by 1.0 on every side and then
 * 1.0 less high; with a custom highlight image (table views only) the row's rectangle itself.
 */
BRIXEL_AUTOTEST_EXPORT QRectF dropHighlightRect(const QRectF &rowRect, bool hasCustomImage);

/**
 * Marks a drop onto the row drawn in \a rect (see dropHighlightRect()) with a rectangle of
 * corner radius 3. An unselected row is first filled with colors.fill at alpha 0.15 and gets
 * an outline at alpha 0.9; a selected row keeps its fill and gets the full outline colour.
 *
 * The outline is stroked with the default path line width, which this sets to 2.0 and leaves
 * so (setBezierPathDefaultLineWidth()); later strokes that use the default are 2 wide.
 */
BRIXEL_AUTOTEST_EXPORT void drawDropHighlightOnRow(QPainter &painter, const QRectF &rect, bool rowSelected,
                                          const SelectionColors &colors);

/// Marks a drop onto the whole view: a frame 2 wide just inside \a bounds in the outline
/// colour at alpha 0.9.
BRIXEL_AUTOTEST_EXPORT void drawDropHighlightOnView(QPainter &painter, const QRectF &bounds, const SelectionColors &colors);

/**
 * The line that marks a drop between rows \a upper and \a lower of a view with \a rowCount
 * rows, or nothing when the pair is none of these:
 * - before the first row (\a upper below 0, \a lower 0): along the top of \a bounds inset
 *   by 1 on both axes;
 * - between two rows (\a upper a row, \a lower above it and below \a rowCount): along the top
 *   of row \a lower, inset by 1 horizontally;
 * - after the last row (\a upper the last row, \a lower = \a rowCount): along the bottom of
 *   row \a upper inset by 1 on both axes.
 *
 * The line starts \a offset right of the base rectangle's left edge and ends at its right
 * edge. \a rectOfRow gives a row's rectangle; when it is empty only the first case can
 * answer.
 */
BRIXEL_AUTOTEST_EXPORT std::optional<QLineF> dropLineBetweenRows(int upper, int lower, int rowCount,
                                                        const std::function<QRectF(int)> &rectOfRow,
                                                        const QRectF &bounds, qreal offset);

/**
 * Draws the drop marker for \a line (see dropLineBetweenRows()): a white circle 6 across
 * ending at the line's start, the line to its end and the circle's outline, both in the
 * outline colour with the default path line width, which this sets to 2.0 and leaves so.
 */
BRIXEL_AUTOTEST_EXPORT void drawDropMarker(QPainter &painter, const QLineF &line, const SelectionColors &colors);

/// How far text cells at the ends of a row with rounded ends keep away from them: a quarter
/// of \a frameHeight, truncated toward zero (negative for a negative height). NaN and
/// heights beyond the 32-bit range give -2147483648.
BRIXEL_AUTOTEST_EXPORT int textCellInset(qreal frameHeight);

/**
 * \a frame of a text cell in column \a column of \a columnCount, pulled away from the
 * rounded ends of styles 1 and 2 by textCellInset(): the first column loses the inset on its
 * left, the last column on its right (a one-column table only on the left). Other columns
 * and other styles keep their frame.
 */
BRIXEL_AUTOTEST_EXPORT QRect insetTextCellFrame(QRect frame, ZARNTableView::HighlightStyle style, int column, int columnCount);

/// Where a drop lands: on a row, between it and a neighbour, or on the view (no row under
/// the point).
enum class DropPosition { OnRow, AboveRow, BelowRow, OnView };

/**
 * Qt's own rule for where a drop at height \a y lands on the row in \a rowRect: closer than
 * a margin of qBound(2, qRound(height / 5.5), 12) pixels to the top edge above the row,
 * closer than it to the bottom pixel row below it, otherwise on the row. A row that takes no
 * drops sends the drop above or below it by the half of the row \a y is in. A \a y above the
 * row answers AboveRow and one below it BelowRow, so this never answers OnView; that is for
 * the view to say when no row is under the point.
 */
BRIXEL_AUTOTEST_EXPORT DropPosition dropPositionInRow(const QRect &rowRect, int y, bool rowAcceptsDrops);

} // namespace BrixelPrivate
