// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QAbstractItemDelegate>
#include <QMetaType>

#include <functional>
#include <optional>

/**
 * Where the editing position of a table goes when an editor closes: the spreadsheet-like
 * search behind Tab, Backtab and Return, kept apart from the views so it can be checked on
 * its own.
 */
namespace BrixelPrivate {

/// How an editor was left. The values are the ones text movements carry elsewhere, so they
/// can be stored or compared as numbers.
enum class TextMovement {
    Other = 0, ///< anything but the three below; the view ends editing in Qt's own way
    Return = 16,
    Tab = 17,
    Backtab = 18,
};

/// A cell by row and column index (the view's column order, hidden columns left out).
struct Cell {
    int row = 0;
    int column = 0;
    friend bool operator==(const Cell &, const Cell &) = default;
};

/**
 * The cell to edit after the editor of \a from closed with \a movement, in a table of
 * \a rows by \a columns, where \a isEditable says which cells may be edited.
 *
 * - Tab: the rest of \a from's row to the right; then each following row from its first
 *   column; then, wrapping, every row from the top again, \a from's own row included.
 * - Backtab: the mirror image: leftwards in the row, then the rows above from their last
 *   column, then every row from the bottom up.
 * - Return: \a from's column only: the rows below, then every row from the top.
 * - Other: always nullopt.
 *
 * The first editable cell found is the answer, so when \a from is the only editable cell,
 * Tab and Return come back to it.
 *
 * \code
 * // Tab from the last cell of a 3 x 2 table in which every cell is editable:
 * nextEditableCell(TextMovement::Tab, {2, 1}, 3, 2, [](Cell) { return true; }); // {0, 0}
 * \endcode
 *
 * Bad input: zero or negative \a rows or \a columns, or an empty \a isEditable, give nullopt. Only cells inside the
 * table are offered to \a isEditable, except the cells of \a from's own row, which is
 * scanned first even when it lies outside the table (the editor's row may have been removed
 * meanwhile); a cell found there answers nullopt, as does Return from a column outside the
 * table. No cell is offered more than twice.
 */
BRIXEL_AUTOTEST_EXPORT std::optional<Cell> nextEditableCell(TextMovement movement, Cell from, int rows, int columns,
                                                   const std::function<bool(Cell)> &isEditable);

/// The movement an editor's end-of-editing hint stands for: EditNextItem is Tab,
/// EditPreviousItem Backtab, SubmitModelCache Return, any other hint Other.
BRIXEL_AUTOTEST_EXPORT TextMovement textMovementForHint(QAbstractItemDelegate::EndEditHint hint);

} // namespace BrixelPrivate

Q_DECLARE_METATYPE(BrixelPrivate::Cell)
