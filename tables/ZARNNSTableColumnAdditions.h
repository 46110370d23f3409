// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

class ZARNTableColumn;

/**
 * \file
 * Fitting a column to its contents.
 *
 * \code
 * sizeToFitData(table->tableColumnWithIdentifier(u"Name"_s));
 * \endcode
 */

namespace Brixel {

/**
 * The width the column's data needs: the widest sizeHint() its data cell (delegate) gives
 * for the view's rows, but at least minWidth(), times 1.1, truncated to a whole number, plus
 * 4. The cells are measured with the view's own style option.
 *
 * In a QTreeView every shown row counts (children of expanded items, at any depth; hidden
 * rows are skipped), each with its depth times indentation() added to the cell's width; the
 * tree column (treePosition(), where -1 means model column 0) gets 16 more after the factor.
 * In a QTableView the rows it hides are skipped. Every row is measured, so the cost grows
 * with the number of rows; unlike QHeaderView's resizeContentsPrecision(), no limit applies.
 *
 * A delegate shows values straight from the model and holds none of its own, so unlike a
 * cell that is given each value to measure, nothing needs restoring afterwards.
 *
 * A column without a view, or whose view has no model, answers minWidth() as it is (no
 * factor, no margin). A null column answers 0.
 */
BRIXEL_EXPORT float dataWidth(const ZARNTableColumn *column);

/// Sets the column's width to dataWidth(), limited by its maxWidth(). A null column does
/// nothing.
BRIXEL_EXPORT void sizeToFitData(ZARNTableColumn *column);

} // namespace Brixel
