// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QAbstractItemView;
class QMenu;
class QMouseEvent;

namespace brixel {

/// What a key does in the library's table and outline views.
enum class KeyRole {
    ReturnKey, ///< Return or Enter: the delegate's return-key message; the view does nothing else
    DeleteBackward, ///< Backspace or Delete: the delegate's delete-backward message
    SelectionMove, ///< Up or Down: Qt moves the selection, the delegate hears when the row changed
    Other, ///< everything else goes to Qt's own key handling
};

/// The role of the Qt key code \a key. Unknown and zero codes are KeyRole::Other.
BRIXEL_EXPORT KeyRole keyRole(int key);

/**
 * The item of the row that counts as "the selected row": the current index when its row is
 * selected, otherwise the first selected row in selection order. The answer is the row's
 * column-0 index; it is invalid when nothing is selected, and for a null view or a view
 * without a selection model.
 */
BRIXEL_EXPORT QModelIndex selectedRowItem(const QAbstractItemView *view);

/**
 * Selects the row of \a item alone (as the current row, whole row) and asks the viewport to
 * redraw. An invalid item or a null view does nothing.
 */
BRIXEL_EXPORT void selectRowAlone(QAbstractItemView *view, const QModelIndex &item);

/**
 * Whether \a event is a Control-click: the left button with the Meta modifier (Qt's name for
 * the Control key of Mac keyboards), pressed or double-clicked. Null is false.
 */
BRIXEL_EXPORT bool isControlClick(const QMouseEvent *event);

/**
 * Whether a Control-click selects like a plain click before the menu opens: only the first
 * click of a sequence does (MouseButtonPress); a double click opens the menu alone.
 */
BRIXEL_EXPORT bool controlClickSelectsFirst(const QMouseEvent *event);

/**
 * The behaviour the library's table and outline views share, kept apart from the widgets:
 * the context menu, the drag-image flag with the drag itself, live resizing and the
 * selection-change check of the arrow keys. Each view owns one, made with itself.
 *
 * \code
 * d->behaviour = new brixel::ItemViewBehaviour(this, [this] { updateGeometries(); });
 * ...
 * void MyView::startDrag(Qt::DropActions actions)
 * {
 *     d->behaviour->startDrag(selectedIndexes(), actions, defaultDropAction());
 * }
 * \endcode
 */
class BRIXEL_EXPORT ItemViewBehaviour : public QObject
{
    Q_OBJECT
public:
    /// A resize counts as live until this many milliseconds pass without another one.
    static constexpr int LiveResizeQuietMilliseconds = 200;

    /**
     * Serves \a view (its parent, so it lives as long as the view). \a relayout re-lays the
     * view's rows; it runs on every live-resize step and once when the resize ends. An empty
     * function does nothing.
     */
    ItemViewBehaviour(QAbstractItemView *view, std::function<void()> relayout);
    ~ItemViewBehaviour() override;

    /// The view's menu, not owned; null when none was set or it was deleted.
    QMenu *menu() const;
    void setMenu(QMenu *menu);

    /**
     * Pops the menu up at \a globalPos (Qt emits its aboutToShow(), where the application
     * updates it). False, and nothing shown, without a menu.
     */
    bool showMenu(const QPoint &globalPos) const;

    /**
     * Runs \a passToQt (the view's own handling of an Up or Down key) and says whether it
     * changed selectedRowItem().
     */
    bool moveChangesSelectedRow(const std::function<void()> &passToQt) const;

    /// True from the moment the drag image is requested until the drag begins.
    bool inDragPrep() const;

    /**
     * Starts a drag of \a selected (the view's selected indexes): the model's drag-enabled
     * items, the model's mime data, and as the image the viewport's drawing of the dragged
     * rows, made with inDragPrep() true so that the view draws those rows without highlighted
     * cell contents. The default action is \a defaultAction when \a supported allows it, else
     * Copy (not for InternalMove views). After a Move the dragged rows are removed, or cleared
     * in overwrite mode, as Qt's own views do. Nothing happens without a model, draggable
     * items or mime data.
     */
    void startDrag(const QModelIndexList &selected, Qt::DropActions supported, Qt::DropAction defaultAction);

    /**
     * Whether the view is being resized right now. False without an application object.
     * While true, each resize re-lays the rows at once.
     */
    bool inLiveResize() const;

    /// To be called from the view's resizeEvent(): re-lays the rows and (re)starts the live
    /// resize, which ends LiveResizeQuietMilliseconds after the last call.
    void noteResize();

Q_SIGNALS:
    /// The live resize ended; the rows were re-laid once more just before.
    void liveResizeEnded();

    /// The application became active: cached artwork drawn from the system colours is stale.
    void applicationBecameActive();

private:
    void endLiveResize();
    QPixmap dragImage(const QModelIndexList &indexes, QPoint *hotSpot);
    void removeMovedRows(const QModelIndexList &indexes) const;

    QAbstractItemView *const m_view;
    const std::function<void()> m_relayout;
    QPointer<QMenu> m_menu;
    QTimer m_liveResizeTimer;
    bool m_inDragPrep = false;
};

} // namespace brixel
