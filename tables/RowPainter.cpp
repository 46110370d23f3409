// SPDX-License-Identifier: LGPL-2.1-or-later
#include "RowPainter_p.h"

#include "TableColumnList_p.h"
#include "ZARNNSTableViewSelectionColorAdditions.h"
#include "ZARNTableColumn.h"
#include "ZARNTextFieldCell.h"

#include <QHeaderView>
#include <QPainter>
#include <QTableView>

#include <cmath>

namespace BrixelPrivate {

DropTarget dropTargetAt(int row, const QRect &rowRect, int y, bool rowAcceptsDrops, qreal offset)
{
    if (row < 0)
        return {DropTarget::Kind::OnView};
    switch (dropPositionInRow(rowRect, y, rowAcceptsDrops)) {
    case DropPosition::OnRow:
        return {DropTarget::Kind::OnRow, row};
    case DropPosition::AboveRow:
        return {DropTarget::Kind::BetweenRows, row - 1, row, offset};
    case DropPosition::BelowRow:
        return {DropTarget::Kind::BetweenRows, row, row + 1, offset};
    case DropPosition::OnView:
        break;
    }
    return {DropTarget::Kind::OnView};
}

QPixmap viewportPicture(const QAbstractItemView &view, const QRect &area, const std::function<void(QPainter &)> &draw)
{
    const qreal ratio = view.devicePixelRatioF();
    QPixmap picture(area.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(-area.topLeft());
    draw(painter);
    return picture;
}

namespace {

/// Where a cell sits among the shown columns, as QTreeView tells its delegates.
QStyleOptionViewItem::ViewItemPosition itemPosition(bool first, bool last)
{
    if (first && last)
        return QStyleOptionViewItem::OnlyOne;
    if (first)
        return QStyleOptionViewItem::Beginning;
    return last ? QStyleOptionViewItem::End : QStyleOptionViewItem::Middle;
}

/// The visual sections of \a header that reach into [\a left, \a right]: first and last,
/// or an empty range (first > last) when none does.
std::pair<int, int> visualSectionsBetween(const QHeaderView &header, int left, int right)
{
    const int count = header.count();
    // Right to left, positions run the other way; every section is drawn then.
    if (header.isRightToLeft())
        return {0, count - 1};
    if (count == 0 || right < 0 || left >= header.length() - header.offset())
        return {0, -1};
    const int first = header.visualIndexAt(std::max(left, 0));
    const int last = header.visualIndexAt(right);
    return {first < 0 ? 0 : first, last < 0 ? count - 1 : last};
}

} // namespace

RowPainter::RowPainter(QPainter &painter, const QAbstractItemView &view, QStyleOptionViewItem option,
                       const TableColumnList &columns, const QRect &area, Options options, CellNotice notice,
                       GradientSource gradient)
    : m_painter(painter)
    , m_view(view)
    , m_table(qobject_cast<const QTableView *>(&view))
    , m_option(std::move(option))
    , m_options(options)
    , m_notice(std::move(notice))
    , m_gradientSource(std::move(gradient))
    , m_colors{Brixel::selectionColor(&view), Brixel::selectionOutlineColor(&view), Brixel::selectionShouldDrawGradient(&view)}
{
    // The view draws the selection itself; styles must not add theirs behind the cells.
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        m_option.palette.setBrush(group, QPalette::Highlight, Qt::transparent);
    // Keyboard focus shows in the selection colours, not as a frame around one cell.
    m_option.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);

    const QHeaderView *header = columns.header();
    if (!header)
        return;
    const int firstShown = columns.firstShownModelColumn();
    const int lastShown = columns.lastShownModelColumn();
    const std::pair<int, int> drawnSections = visualSectionsBetween(*header, area.left(), area.right());
    const int firstDrawn = drawnSections.first;
    const int lastDrawn = drawnSections.second;
    const auto addColumn = [&](ZARNTableColumn *column, int logical) {
        const int visual = header->visualIndex(logical);
        m_columns.push_back({column, logical, visual >= firstDrawn && visual <= lastDrawn,
                             itemPosition(logical == firstShown, logical == lastShown)});
    };
    // Cells outside the area change no pixel; only the notice needs every column.
    if (m_notice) {
        const QList<ZARNTableColumn *> shown = columns.tableColumns();
        for (ZARNTableColumn *column : shown)
            addColumn(column, column->modelColumn());
        return;
    }
    for (int visual = firstDrawn; visual <= lastDrawn; ++visual) {
        const int logical = header->logicalIndex(visual);
        if (!header->isSectionHidden(logical))
            addColumn(nullptr, logical);
    }
}

void RowPainter::drawSelection(const QRectF &rowRect, const QImage &customImage)
{
    if (!customImage.isNull()) {
        drawRowHighlight(m_painter, rowRect, m_options.highlightStyle, m_colors, QImage(), customImage);
        return;
    }
    if (m_colors.drawsGradient && !m_gradient)
        m_gradient = m_gradientSource ? m_gradientSource() : QImage();
    // Rows of one size look alike: the highlight is drawn once onto a transparent image and
    // stamped onto each row, far cheaper than filling the shape with the stretched gradient
    // again. Blending is source-over either way, so the pixels are the same.
    const QPointF fraction(rowRect.x() - std::floor(rowRect.x()), rowRect.y() - std::floor(rowRect.y()));
    const QRectF local(fraction, rowRect.size());
    if (m_stamp.isNull() || m_stampRect != local) {
        const qreal ratio = m_painter.device() ? m_painter.device()->devicePixelRatioF() : 1.0;
        const QSize size(int(std::ceil(local.right())), int(std::ceil(local.bottom())));
        if (size.isEmpty() || size.width() > maximumStampSize || size.height() > maximumStampSize) {
            drawRowHighlight(m_painter, rowRect, m_options.highlightStyle, m_colors, m_gradient.value_or(QImage()), QImage());
            return;
        }
        m_stamp = QImage(size * ratio, QImage::Format_ARGB32_Premultiplied);
        m_stamp.setDevicePixelRatio(ratio);
        m_stamp.fill(Qt::transparent);
        QPainter stampPainter(&m_stamp);
        drawRowHighlight(stampPainter, local, m_options.highlightStyle, m_colors, m_gradient.value_or(QImage()), QImage());
        m_stampRect = local;
    }
    m_painter.drawImage(rowRect.topLeft() - fraction, m_stamp);
}

void RowPainter::drawAlternateBackground(const QRectF &rowRect)
{
    m_painter.fillRect(rowRect, m_option.palette.brush(QPalette::AlternateBase));
}

void RowPainter::drawCells(const Row &row)
{
    if (row.firstColumnSpanned) {
        // QTreeView draws a spanned row's first model column alone, across the row.
        for (const Column &column : m_columns)
            notify(column, row.index.siblingAtColumn(column.modelColumn));
        drawCell({nullptr, 0, true, QStyleOptionViewItem::OnlyOne}, row.index.siblingAtColumn(0), row);
        return;
    }
    for (const Column &column : m_columns) {
        const QModelIndex index = row.index.siblingAtColumn(column.modelColumn);
        notify(column, index);
        if (!column.drawn)
            continue;
        if (const std::optional<QModelIndex> anchor = spanAnchorToDraw(index)) {
            if (anchor->isValid()) {
                Row spanRow = row;
                spanRow.selected = m_view.selectionModel() && m_view.selectionModel()->isRowSelected(anchor->row(), anchor->parent());
                drawCell(column, *anchor, spanRow);
            }
            continue;
        }
        drawCell(column, index, row);
    }
}

void RowPainter::drawCell(const Column &column, const QModelIndex &index, const Row &row)
{
    QAbstractItemDelegate *cell = m_view.itemDelegateForIndex(index);
    if (!cell)
        return;
    QRect frame = m_view.visualRect(index);
    const bool first = column.position == QStyleOptionViewItem::Beginning || column.position == QStyleOptionViewItem::OnlyOne;
    const bool last = column.position == QStyleOptionViewItem::End || column.position == QStyleOptionViewItem::OnlyOne;
    if (qobject_cast<const ZARNTextFieldCell *>(cell) && (!first || m_options.insetFirstColumn)) {
        // The inset rule counts columns: the first loses its left end, the last (of more than
        // one) its right end.
        frame = insetTextCellFrame(frame, m_options.highlightStyle, first ? 0 : 1, last && !first ? 2 : 3);
    }
    if (column.modelColumn == row.widenedModelColumn)
        frame.setLeft(frame.left() - hiddenMarkerWidth);
    // One option serves the whole pass; only what differs per cell is set and put back.
    const QStyle::State passState = m_option.state;
    const QStyleOptionViewItem::ViewItemFeatures passFeatures = m_option.features;
    const QPalette::ColorGroup passGroup = m_option.palette.currentColorGroup();
    m_option.rect = frame;
    m_option.index = index;
    m_option.state |= row.state;
    if (row.selected && !m_options.inDragPrep)
        m_option.state |= QStyle::State_Selected;
    if (isHovered(index))
        m_option.state |= QStyle::State_MouseOver;
    applyEnabledState(index);
    m_option.features.setFlag(QStyleOptionViewItem::Alternate, row.alternate);
    if (m_options.setsItemPosition)
        m_option.viewItemPosition = column.position;
    cell->paint(&m_painter, m_option, index);
    m_option.state = passState;
    m_option.features = passFeatures;
    m_option.palette.setCurrentColorGroup(passGroup);
}

bool RowPainter::isHovered(const QModelIndex &index) const
{
    const QModelIndex &hovered = m_options.hoveredIndex;
    if (!hovered.isValid())
        return false;
    return index == hovered || (m_options.hoverMarksRow && index.row() == hovered.row() && index.parent() == hovered.parent());
}

// In an enabled view a disabled item is drawn disabled, in the Disabled colour group, as
// Qt's views draw it.
void RowPainter::applyEnabledState(const QModelIndex &index)
{
    if (!m_option.state.testFlag(QStyle::State_Enabled))
        return;
    QPalette::ColorGroup group = QPalette::Active;
    if (!index.flags().testFlag(Qt::ItemIsEnabled)) {
        m_option.state &= ~QStyle::State_Enabled;
        group = QPalette::Disabled;
    } else if (m_options.colorGroupFollowsActivity && !m_option.state.testFlag(QStyle::State_Active)) {
        group = QPalette::Inactive;
    }
    m_option.palette.setCurrentColorGroup(group);
}

void RowPainter::notify(const Column &column, const QModelIndex &index) const
{
    if (!m_notice || !column.column)
        return;
    if (QAbstractItemDelegate *cell = m_view.itemDelegateForIndex(index))
        m_notice(cell, column.column, index);
}

// A cell covered by a span stands for the span's anchor cell, drawn into the span's
// rectangle the first time one of its cells comes up: nullopt for a cell outside spans, an
// invalid index for a span already drawn.
std::optional<QModelIndex> RowPainter::spanAnchorToDraw(const QModelIndex &index)
{
    if (!m_table || (m_table->rowSpan(index.row(), index.column()) <= 1 && m_table->columnSpan(index.row(), index.column()) <= 1))
        return std::nullopt;
    const QModelIndex anchor = m_table->indexAt(m_table->visualRect(index).topLeft());
    if (!anchor.isValid() || m_drawnSpans.contains(anchor))
        return QModelIndex();
    m_drawnSpans.append(anchor);
    return anchor;
}

void RowPainter::drawDropOnRow(const QRectF &rowRect, bool rowSelected, bool hugsRow)
{
    drawDropHighlightOnRow(m_painter, dropHighlightRect(rowRect, hugsRow), rowSelected, m_colors);
}

void RowPainter::drawDropOnView(const QRectF &bounds)
{
    drawDropHighlightOnView(m_painter, bounds, m_colors);
}

void RowPainter::drawDropBetweenRows(int upper, int lower, int rowCount, const std::function<QRectF(int)> &rectOfRow,
                                     const QRectF &bounds, qreal offset)
{
    if (const std::optional<QLineF> line = dropLineBetweenRows(upper, lower, rowCount, rectOfRow, bounds, offset))
        drawDropMarker(m_painter, *line, m_colors);
}

} // namespace BrixelPrivate
