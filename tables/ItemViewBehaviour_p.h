// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNTableView.h"
#include <Brixel/brixel_export.h>

#include <QModelIndex>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>

#include <functional>

class QAbstractItemView;
class QContextMenuEvent;
class QDrag;
class QHeaderView;
class QMenu;
class QMouseEvent;

namespace BrixelPrivate {

/// What a key does in the library's table and outline views.
enum class KeyRole {
    ReturnKey, ///< Return or Enter: the delegate's return-key message; the view does nothing else
    DeleteBackward, ///< Backspace or Delete: the delegate's delete-backward message
    SelectionMove, ///< Up or Down: Qt moves the selection, the delegate hears when the row changed
    Other, ///< everything else goes to Qt's own key handling
};

/// The role of the Qt key code \a key. Unknown and zero codes are KeyRole::Other.
BRIXEL_AUTOTEST_EXPORT KeyRole keyRole(int key);

/**
 * The item of the row that counts as "the selected row": the current index's row when that
 * row is selected, otherwise the selected row with the lowest row number. The answer is the
 * row's column-0 index; it is invalid when no row is selected, and for a null view or a view
 * without a selection model.
 */
BRIXEL_AUTOTEST_EXPORT QModelIndex selectedRowItem(const QAbstractItemView *view);

/**
 * Makes \a index's row the only selected row, with \a index as the current index, and asks
 * the viewport to redraw. An invalid index or a null view does nothing.
 */
BRIXEL_AUTOTEST_EXPORT void selectRowAlone(QAbstractItemView *view, const QModelIndex &index);

/**
 * Whether \a event is a Control-click: the left button with the Meta modifier (Qt's name for
 * the Control key of Mac keyboards), pressed or double-clicked. Null is false.
 */
BRIXEL_AUTOTEST_EXPORT bool isControlClick(const QMouseEvent *event);

/**
 * Whether a Control-click selects like a plain click before the menu opens: only the first
 * click of a sequence does (MouseButtonPress); a double click opens the menu alone.
 */
BRIXEL_AUTOTEST_EXPORT bool controlClickSelectsFirst(const QMouseEvent *event);

/**
 * The behaviour the library's table and outline views share, kept apart from the widgets:
 * the context menu and the row it was opened for, the drag with its drag-image flag, live
 * resizing, the selection-change check of the arrow keys and the application's activation.
 * Each view owns one, made with itself.
 *
 * \code
 * d->behaviour = new BrixelPrivate::ItemViewBehaviour(this);
 * d->behaviour->followColumnWidths(header());
 * connect(d->behaviour, &BrixelPrivate::ItemViewBehaviour::liveResizeEnded, this, [this] {
 *     if (d->behaviour->takeColumnWidthsChanged() && wordWrap())
 *         doItemsLayout();
 * });
 * ...
 * void MyView::startDrag(Qt::DropActions actions)
 * {
 *     d->behaviour->startDrag(selectedIndexes(), actions, defaultDropAction(), d->pressPosition);
 * }
 * \endcode
 */
class BRIXEL_AUTOTEST_EXPORT ItemViewBehaviour : public QObject
{
    Q_OBJECT
public:
    /// A resize counts as live until this many milliseconds pass without another one.
    static constexpr int LiveResizeSettleInterval = ZARNTableView::LiveResizeSettleInterval;

    /// How a view takes part in startDrag().
    struct DragHooks
    {
        /// Draws the cells of \a indexes within \a area (viewport coordinates) as the drag
        /// image, called with inDragPrep() true; empty: the viewport's drawing of the area.
        std::function<QPixmap(const QModelIndexList &indexes, const QRect &area)> image;
        /// Runs the drag and answers the action the drop took; empty: QDrag::exec().
        std::function<Qt::DropAction(QDrag *drag, Qt::DropActions supported, Qt::DropAction defaultAction)> run;
    };

    /// Serves \a view, which becomes its parent.
    explicit ItemViewBehaviour(QAbstractItemView *view);
    ~ItemViewBehaviour() override;

    /// The view's menu, not owned; null when none was set or it was deleted.
    QMenu *menu() const;
    void setMenu(QMenu *menu);

    /// The row (its column-0 item) the open menu was popped up for; invalid while no menu is
    /// open or when it was opened below the last row.
    QModelIndex contextMenuItem() const;

    /**
     * Pops \a menu (usually menu()) up at \a globalPos for the row of \a index (invalid: no
     * row) and redraws the viewport, so that the row can show it is the menu's. Qt emits the
     * menu's aboutToShow(), where the application updates it. A null menu does nothing.
     */
    void popUpMenu(QMenu *menu, const QModelIndex &index, const QPoint &globalPos);

    /**
     * The view's contextMenuEvent(): the event is accepted; a mouse-driven one does nothing
     * more, because the press already popped the menu up, and one from the keyboard pops
     * menu() up below the current index (at the viewport's corner without one).
     */
    void contextMenuEvent(QContextMenuEvent *event);

    /**
     * Runs \a passToQt (the view's own handling of an Up or Down key) and says whether it
     * changed selectedRowItem().
     */
    bool moveChangesSelectedRow(const std::function<void()> &passToQt) const;

    /// True from the moment the drag image is requested until the drag begins.
    bool inDragPrep() const;

    /**
     * Starts a drag of \a selected (the view's selected indexes): the model's drag-enabled
     * items, the model's mime data, and as the image the drawing of those cells within the
     * viewport (\a hooks.image), made with inDragPrep() true so that the view draws them
     * without highlighted contents; the hot spot is \a pressPosition (viewport coordinates)
     * in that image. The default action is \a defaultAction when \a supported allows it,
     * else Copy (never Copy for an InternalMove view). After a Move, unless the view is
     * InternalMove and the drop went elsewhere, the wholly selected rows are removed from the
     * model, or every selected cell cleared in overwrite mode, as Qt's views do. Nothing
     * happens without a model, draggable items or mime data.
     */
    void startDrag(const QModelIndexList &selected, Qt::DropActions supported, Qt::DropAction defaultAction,
                   QPoint pressPosition, const DragHooks &hooks = {});

    /// Whether the view is being resized: from a resize until LiveResizeSettleInterval ms
    /// after the last one. False without a QApplication.
    bool inLiveResize() const;

    /// To be called from the view's resizeEvent(): (re)starts the live resize.
    void noteResize();

    /// The cell under the pointer, followed from the viewport's hover events as Qt's views
    /// follow it; invalid when the pointer is elsewhere.
    QModelIndex hoveredIndex() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Notes every change of a column's width in \a header, the view's column header.
    void followColumnWidths(QHeaderView *header);

    /**
     * Whether a column's width changed since the last call: only then can rows whose text
     * wraps change their heights, so only then does the end of a live resize lay the rows out
     * again.
     */
    bool takeColumnWidthsChanged();

Q_SIGNALS:
    /// The live resize ended: the view lays its rows out again if their heights can change.
    void liveResizeEnded();

    /// The application became active: artwork drawn from the system colours is stale.
    void applicationBecameActive();

private:
    void removeMovedItems() const;

    QAbstractItemView *const m_view;
    QPointer<QMenu> m_menu;
    QMetaObject::Connection m_menuHidden;
    QPersistentModelIndex m_contextMenuItem;
    QPersistentModelIndex m_hovered;
    QObject *m_viewport = nullptr; // watched for hover events; only compared, as it may be mid-destruction
    QTimer m_liveResizeTimer;
    bool m_inDragPrep = false;
    bool m_columnWidthsChanged = false;
};

} // namespace BrixelPrivate
