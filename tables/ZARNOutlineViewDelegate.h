// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNNotification.h"
#include <Brixel/brixel_export.h>

#include <QImage>
#include <QModelIndex>
#include <QRect>

#include <optional>

class QAbstractItemDelegate;
class ZARNOutlineView;
class ZARNTableColumn;

/**
 * What a ZARNOutlineView tells and asks its delegate. Items are the model indexes of the
 * rows (column 0). Every message is optional: a notice does nothing unless overridden, and a
 * question answers an empty optional, which the view reads as "the delegate does not answer".
 *
 * \code
 * class FolderController : public QObject, public ZARNOutlineViewDelegate
 * {
 *     std::optional<bool> outlineViewShouldShowIndentationMarkerForItem(ZARNOutlineView *, const QModelIndex &item) override
 *     {
 *         return item.parent().isValid();     // no disclosure marker on the top level
 *     }
 * };
 * \endcode
 */
class BRIXEL_EXPORT ZARNOutlineViewDelegate
{
public:
    virtual ~ZARNOutlineViewDelegate();

    /// Return or Enter was pressed (not while editing a cell).
    virtual void outlineViewReturnKey(ZARNOutlineView *outlineView);

    /// Backspace or Delete was pressed (not while editing a cell).
    virtual void outlineViewDeleteBackward(ZARNOutlineView *outlineView);

    /// The Up or Down arrow moved the selected row. The notification keeps the table's name,
    /// NSTableViewSelectionIsChangingNotification, so one handler can serve both views.
    virtual void outlineViewSelectionIsChanging(const ZARNNotification &notification);

    /// Whether \a item shows its disclosure marker; without an answer the view's
    /// showsIndentationMarker() decides.
    virtual std::optional<bool> outlineViewShouldShowIndentationMarkerForItem(ZARNOutlineView *outlineView, const QModelIndex &item);

    /// The disclosure image of an expanded \a item, instead of the "expanded" artwork.
    virtual std::optional<QImage> outlineViewExpandedIndicatorForItem(ZARNOutlineView *outlineView, const QModelIndex &item);

    /// The disclosure image of a collapsed \a item, instead of the "collapsed" artwork.
    virtual std::optional<QImage> outlineViewCollapsedIndicatorForItem(ZARNOutlineView *outlineView, const QModelIndex &item);

    /// The row of \a item is about to be drawn in \a rect.
    virtual void outlineViewWillDrawItem(ZARNOutlineView *outlineView, const QModelIndex &item, const QRect &rect);

    /// \a cell is about to draw the cell of \a column for \a item.
    virtual void outlineViewWillDisplayCell(ZARNOutlineView *outlineView, QAbstractItemDelegate *cell, ZARNTableColumn *column, const QModelIndex &item);

    /// An image drawn in place of the selection's outline and fill of \a item's row.
    virtual std::optional<QImage> outlineViewCustomHighlightImageForItem(ZARNOutlineView *outlineView, const QModelIndex &item);

    /// The view is about to draw \a rect (viewport coordinates). The outline view sends the
    /// table view's message, so a delegate serving both views answers both alike.
    virtual void tableViewWillDrawRect(ZARNOutlineView *outlineView, const QRect &rect);
};
