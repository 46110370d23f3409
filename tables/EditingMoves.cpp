// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EditingMoves_p.h"

#include <algorithm>

namespace BrixelPrivate {

namespace {

/// Rows \a firstRow to \a lastRow, each from column \a firstColumn to \a lastColumn, all
/// stepping by \a step (+1 or -1). Bounds are 64-bit so that neighbours of extreme indexes
/// do not overflow.
std::optional<Cell> scan(qint64 firstRow, qint64 lastRow, qint64 firstColumn, qint64 lastColumn, int step,
                         const std::function<bool(Cell)> &isEditable)
{
    const auto within = [step](qint64 value, qint64 last) { return step > 0 ? value <= last : value >= last; };
    for (qint64 row = firstRow; within(row, lastRow); row += step) {
        for (qint64 column = firstColumn; within(column, lastColumn); column += step) {
            const Cell cell{int(row), int(column)};
            if (isEditable(cell))
                return cell;
        }
    }
    return {};
}

/// Keeps a scan's starting index inside 0 .. count - 1 on the side it starts from, so that
/// indexes outside the table are never visited.
qint64 clampedStart(qint64 start, int step, int count)
{
    return step > 0 ? std::max<qint64>(start, 0) : std::min<qint64>(start, count - 1);
}

std::optional<Cell> search(TextMovement movement, Cell from, int rows, int columns,
                           const std::function<bool(Cell)> &isEditable)
{
    const int step = movement == TextMovement::Backtab ? -1 : 1;
    const qint64 firstRow = step > 0 ? 0 : rows - 1;
    const qint64 lastRow = step > 0 ? rows - 1 : 0;
    const qint64 nextRow = clampedStart(qint64(from.row) + step, step, rows);

    if (movement == TextMovement::Return) {
        if (from.column < 0 || from.column >= columns)
            return {};
        if (auto cell = scan(nextRow, lastRow, from.column, from.column, step, isEditable))
            return cell;
        return scan(firstRow, lastRow, from.column, from.column, step, isEditable);
    }

    const qint64 firstColumn = step > 0 ? 0 : columns - 1;
    const qint64 lastColumn = step > 0 ? columns - 1 : 0;
    const qint64 nextColumn = clampedStart(qint64(from.column) + step, step, columns);
    if (auto cell = scan(from.row, from.row, nextColumn, lastColumn, step, isEditable))
        return cell;
    if (auto cell = scan(nextRow, lastRow, firstColumn, lastColumn, step, isEditable))
        return cell;
    return scan(firstRow, lastRow, firstColumn, lastColumn, step, isEditable);
}

} // namespace

std::optional<Cell> nextEditableCell(TextMovement movement, Cell from, int rows, int columns,
                                     const std::function<bool(Cell)> &isEditable)
{
    if (movement == TextMovement::Other || rows <= 0 || columns <= 0 || !isEditable)
        return {};
    const std::optional<Cell> cell = search(movement, from, rows, columns, isEditable);
    if (!cell || cell->row < 0 || cell->row >= rows || cell->column < 0 || cell->column >= columns)
        return {};
    return cell;
}

TextMovement textMovementForHint(QAbstractItemDelegate::EndEditHint hint)
{
    switch (hint) {
    case QAbstractItemDelegate::EditNextItem:
        return TextMovement::Tab;
    case QAbstractItemDelegate::EditPreviousItem:
        return TextMovement::Backtab;
    case QAbstractItemDelegate::SubmitModelCache:
        return TextMovement::Return;
    default:
        return TextMovement::Other;
    }
}

} // namespace BrixelPrivate
