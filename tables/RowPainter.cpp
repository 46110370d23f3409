// SPDX-License-Identifier: LGPL-2.1-or-later
#include "RowPainter_p.h"

#include "ZARNNSTableViewSelectionColorAdditions.h"
#include "ZARNTableColumn.h"
#include "ZARNTextFieldCell.h"

#include <QAbstractItemView>
#include <QPainter>

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

RowPainter::RowPainter(QPainter &painter, const QAbstractItemView &view, QStyleOptionViewItem option,
                       const QList<ZARNTableColumn *> &columns, Options options, CellNotice notice,
                       GradientSource gradient)
    : m_painter(painter)
    , m_view(view)
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
    m_columns.reserve(columns.size());
    for (ZARNTableColumn *column : columns)
        m_columns.push_back({column, column->modelColumn()});
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

void RowPainter::drawCells(const QModelIndex &rowIndex, bool selected, int widenedColumn)
{
    const int count = int(m_columns.size());
    const QStyle::State baseState = m_option.state;
    if (selected && !m_options.inDragPrep)
        m_option.state |= QStyle::State_Selected;
    for (int i = 0; i < count; ++i) {
        const Column &column = m_columns[size_t(i)];
        const QModelIndex index = rowIndex.siblingAtColumn(column.modelColumn);
        QAbstractItemDelegate *cell = m_view.itemDelegateForIndex(index);
        if (!cell)
            continue;
        QRect frame = m_view.visualRect(index);
        if (qobject_cast<const ZARNTextFieldCell *>(cell) && (i != 0 || m_options.insetFirstColumn))
            frame = insetTextCellFrame(frame, m_options.highlightStyle, i, count);
        if (i == widenedColumn)
            frame.setLeft(frame.left() - hiddenMarkerWidth);
        if (m_notice)
            m_notice(cell, column.column, index);
        m_option.rect = frame;
        m_option.index = index;
        cell->paint(&m_painter, m_option, index);
    }
    m_option.state = baseState;
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
