// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNNotification.h"
#include <Brixel/brixel_export.h>

#include <QImage>
#include <QModelIndex>
#include <QRect>

#include <optional>

class QAbstractItemDelegate;
class ZARNTableColumn;
class ZARNTableView;

/**
 * What a ZARNTableView tells and asks its delegate. Every message is optional: a notice does
 * nothing unless overridden, and a question answers an empty optional, which the view reads
 * as "the delegate does not answer" and falls back to its own rule.
 *
 * \code
 * class DownloadsController : public QObject, public ZARNTableViewDelegate
 * {
 *     void tableViewReturnKey(ZARNTableView *table) override { openSelection(table); }
 *     std::optional<bool> tableViewShouldEditTableColumn(ZARNTableView *, ZARNTableColumn *column, int) override
 *     {
 *         return column->identifier() == u"name";
 *     }
 * };
 * table->setDelegate(&controller);
 * \endcode
 */
class BRIXEL_EXPORT ZARNTableViewDelegate
{
public:
    virtual ~ZARNTableViewDelegate();

    /// Return or Enter was pressed in \a tableView (not while editing a cell).
    virtual void tableViewReturnKey(ZARNTableView *tableView);

    /// Backspace or Delete was pressed in \a tableView (not while editing a cell).
    virtual void tableViewDeleteBackward(ZARNTableView *tableView);

    /// The Up or Down arrow moved the selected row. The notification is named
    /// NSTableViewSelectionIsChangingNotification and its object is the table.
    virtual void tableViewSelectionIsChanging(const ZARNNotification &notification);

    /**
     * Tab is about to open the cell at \a column, \a row for editing; the delegate may change
     * both. \a fromColumn and \a fromRow are the cell whose editing just ended. Backtab and
     * Return do not send this.
     */
    virtual void tableViewWillTabToColumn(ZARNTableView *tableView, int &column, int &row, int fromColumn, int fromRow);

    /// Whether the cell of \a column in \a row may be edited; the answer overrides the
    /// column's own editable flag in both directions.
    virtual std::optional<bool> tableViewShouldEditTableColumn(ZARNTableView *tableView, ZARNTableColumn *column, int row);

    /// The view is about to draw \a rect (viewport coordinates).
    virtual void tableViewWillDrawRect(ZARNTableView *tableView, const QRect &rect);

    /// \a cell is about to draw the cell of \a column in \a row; the delegate may change the
    /// cell's settings (colours, image) for this one drawing.
    virtual void tableViewWillDisplayCell(ZARNTableView *tableView, QAbstractItemDelegate *cell, ZARNTableColumn *column, int row);

    /// An image drawn in place of the selection's outline and fill of \a row, clipped to the
    /// row's highlight shape.
    virtual std::optional<QImage> tableViewCustomHighlightImageForRow(ZARNTableView *tableView, int row);

    /**
     * Asked while a drop targets a row: when it answers a non-null image for the row's item
     * (the model index of the row's first column), the drop frame hugs the row's full
     * rectangle instead of an inset one. The same question as the outline view's.
     */
    virtual std::optional<QImage> outlineViewCustomHighlightImageForItem(ZARNTableView *tableView, const QModelIndex &item);
};
