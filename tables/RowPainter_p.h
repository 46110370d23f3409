// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "RowHighlighting_p.h"
#include <Brixel/brixel_export.h>

#include <QList>
#include <QModelIndex>
#include <QPixmap>
#include <QStyleOptionViewItem>

#include <functional>
#include <optional>
#include <vector>

class QAbstractItemDelegate;
class QAbstractItemView;
class QPainter;
class QTableView;
class ZARNTableColumn;

namespace BrixelPrivate {

class TableColumnList;

/// Where a drag hovering over a view would drop, as the view marks it.
struct DropTarget
{
    enum class Kind { None, OnRow, BetweenRows, OnView };

    Kind kind = Kind::None;
    int row = -1;      ///< OnRow: the row; BetweenRows: the row above the line (-1 for none)
    int lowerRow = -1; ///< BetweenRows: the row below the line
    qreal offset = 0;  ///< BetweenRows: how far right of the row's left edge the line starts

    friend bool operator==(const DropTarget &, const DropTarget &) = default;
};

/**
 * The target of a drag at height \a y: on the view when \a row is below 0 (no row under the
 * point), otherwise by dropPositionInRow() on \a rowRect: on the row, or between it and the
 * row above (\a row - 1, \a row) or below (\a row, \a row + 1), the line starting \a offset
 * right of the row's left edge.
 */
BRIXEL_AUTOTEST_EXPORT DropTarget dropTargetAt(int row, const QRect &rowRect, int y, bool rowAcceptsDrops, qreal offset);

/**
 * A transparent picture of \a area of \a view's viewport (viewport coordinates) at the
 * view's pixel ratio, with what \a draw paints into it at viewport positions: the base of a
 * drag image. An empty area gives an empty picture.
 */
BRIXEL_AUTOTEST_EXPORT QPixmap viewportPicture(const QAbstractItemView &view, const QRect &area,
                                      const std::function<void(QPainter &)> &draw);

/**
 * Draws the rows of a table or outline view for one painting pass: the selection shapes, the
 * cells of each row and the drop marks, in the view's selection colours.
 *
 * A pass makes one painter from the view's current state (colours, columns, the option the
 * cells draw with) and then draws any number of rows; nothing is allocated per row or cell
 * beyond what the cells themselves need.
 *
 * Each cell of a row is drawn by its column's data cell (the view's delegate for the index)
 * into the index's visualRect(), with the palette's Highlight made transparent so that no
 * style paints a selection of its own. QStyle::State_Selected is set only for selected rows
 * outside drag preparation: it tells text cells to draw their contents highlighted (white,
 * bold, shadowed). Text cells (ZARNTextFieldCell) at the ends of a row in the Capsule and
 * RoundedRectangle styles keep away from the rounded ends (insetTextCellFrame()).
 *
 * \code
 * BrixelPrivate::RowPainter rows(painter, *view, option, columns, event->rect(),
 *                         {view->highlightStyle(), view->inDragPrep(), true},
 *                         [&](auto *cell, auto *column, const QModelIndex &index) { ... },
 *                         [&] { return view->highlightGradientImage(); });
 * rows.drawSelection(rowRect, QImage());
 * rows.drawCells({model->index(row, 0), true});
 * \endcode
 */
class BRIXEL_AUTOTEST_EXPORT RowPainter
{
public:
    struct Options
    {
        ZARNTableView::HighlightStyle highlightStyle = ZARNTableView::HighlightStyle::Rectangle;
        bool inDragPrep = false;    ///< draw selected rows' contents as unselected
        bool insetFirstColumn = true; ///< apply the text-cell inset to the first column
        /// Tell each cell where it sits in the row (QStyleOptionViewItem::viewItemPosition),
        /// as QTreeView does; QTableView leaves it Invalid.
        bool setsItemPosition = false;
        /// The cell under the pointer: it gets QStyle::State_MouseOver.
        QModelIndex hoveredIndex = {};
        /// The whole row of hoveredIndex gets State_MouseOver, as in QTreeView selecting rows.
        bool hoverMarksRow = false;
        /// Enabled cells draw in the Inactive colour group outside the active window, as in
        /// QTreeView; QTableView keeps them Active.
        bool colorGroupFollowsActivity = false;
    };

    /// One row to draw.
    struct Row
    {
        QModelIndex index;       ///< an index of any column of the row
        bool selected = false;   ///< draw the contents highlighted
        bool alternate = false;  ///< an alternate row: QStyleOptionViewItem::Alternate is set
        QStyle::State state = QStyle::State_None; ///< added to each cell's state (tree branches)
        int widenedModelColumn = -1; ///< its cell reaches hiddenMarkerWidth further left
        bool firstColumnSpanned = false; ///< only model column 0 is drawn, across the row
    };

    /// Told about each cell just before it draws, with the cell, its column and its index.
    using CellNotice = std::function<void(QAbstractItemDelegate *, ZARNTableColumn *, const QModelIndex &)>;
    /// Gives the gradient image for selected rows; asked at most once per pass.
    using GradientSource = std::function<QImage()>;

    /**
     * A pass over \a view drawing into \a painter. \a option is the view's item option
     * (QAbstractItemView::initViewItemOption()); \a columns the view's columns. Only the
     * cells of columns that reach into \a area (viewport coordinates) are drawn; a non-null
     * \a notice is still told about the cells of every shown column.
     */
    RowPainter(QPainter &painter, const QAbstractItemView &view, QStyleOptionViewItem option,
               const TableColumnList &columns, const QRect &area, Options options, CellNotice notice,
               GradientSource gradient);

    /// The colours of the pass: selectionColor(), selectionOutlineColor() and
    /// selectionShouldDrawGradient() of the view.
    const SelectionColors &colors() const { return m_colors; }

    /// The painter the pass draws with.
    QPainter &painter() const { return m_painter; }

    /// Draws one selected row's shape over \a rowRect (see drawRowHighlight()); a non-null
    /// \a customImage replaces the outline and fill. Rows of the same size reuse the shape
    /// drawn for the first of them.
    void drawSelection(const QRectF &rowRect, const QImage &customImage);

    /// Fills \a rowRect with the palette's AlternateBase, the background of alternate rows.
    void drawAlternateBackground(const QRectF &rowRect);

    /**
     * Draws the cells of \a row in its shown columns, highlighted when it is selected. In a
     * QTableView a cell covered by a span draws the span's anchor cell, once per pass, into
     * the span's rectangle.
     */
    void drawCells(const Row &row);

    /// Marks a drop onto the row drawn in \a rowRect; \a hugsRow draws the frame on the row's
    /// own rectangle rather than inset (see dropHighlightRect()).
    void drawDropOnRow(const QRectF &rowRect, bool rowSelected, bool hugsRow);

    /// Marks a drop onto the whole view, inside \a bounds.
    void drawDropOnView(const QRectF &bounds);

    /// Marks a drop between rows \a upper and \a lower (see dropLineBetweenRows()); a pair
    /// that is none of its cases draws nothing.
    void drawDropBetweenRows(int upper, int lower, int rowCount, const std::function<QRectF(int)> &rectOfRow,
                             const QRectF &bounds, qreal offset);

    /// Rows wider or taller than this are highlighted directly, without an intermediate image.
    static constexpr int maximumStampSize = 8192;

    /// How far the cell of a column whose disclosure marker is hidden reaches to the left.
    static constexpr int hiddenMarkerWidth = 16;

private:
    struct Column
    {
        ZARNTableColumn *column; ///< null when no notice is sent
        int modelColumn;
        bool drawn;              ///< reaches into the pass's area
        QStyleOptionViewItem::ViewItemPosition position;
    };

    void drawCell(const Column &column, const QModelIndex &index, const Row &row);
    void notify(const Column &column, const QModelIndex &index) const;
    bool isHovered(const QModelIndex &index) const;
    void applyEnabledState(const QModelIndex &index);
    std::optional<QModelIndex> spanAnchorToDraw(const QModelIndex &index);

    QPainter &m_painter;
    const QAbstractItemView &m_view;
    const QTableView *m_table; // the view when it is a table, whose cells may be spanned
    QList<QModelIndex> m_drawnSpans;
    QStyleOptionViewItem m_option;
    std::vector<Column> m_columns;
    Options m_options;
    CellNotice m_notice;
    GradientSource m_gradientSource;
    std::optional<QImage> m_gradient;
    QImage m_stamp;      // the last highlight drawn, for rows of the same size
    QRectF m_stampRect;  // the row rectangle it was drawn for, moved next to the origin
    SelectionColors m_colors;
};

} // namespace BrixelPrivate
