// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ItemViewBehaviour_p.h"

#include "../platform/ZARNSystemVersion.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QContextMenuEvent>
#include <QDrag>
#include <QItemSelectionModel>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>

#include <algorithm>

namespace BrixelPrivate {

KeyRole keyRole(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return KeyRole::ReturnKey;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return KeyRole::DeleteBackward;
    case Qt::Key_Up:
    case Qt::Key_Down:
        return KeyRole::SelectionMove;
    default:
        return KeyRole::Other;
    }
}

QModelIndex selectedRowItem(const QAbstractItemView *view)
{
    const QItemSelectionModel *selection = view ? view->selectionModel() : nullptr;
    if (!selection)
        return {};
    const QModelIndex current = selection->currentIndex();
    if (current.isValid() && selection->isRowSelected(current.row(), current.parent()))
        return current.siblingAtColumn(0);
    const QModelIndexList rows = selection->selectedRows();
    if (rows.isEmpty())
        return {};
    return *std::min_element(rows.cbegin(), rows.cend(), [](const QModelIndex &a, const QModelIndex &b) {
        return a.row() < b.row();
    });
}

void selectRowAlone(QAbstractItemView *view, const QModelIndex &index)
{
    if (!view || !index.isValid() || !view->selectionModel())
        return;
    view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view->viewport()->update();
}

bool isControlClick(const QMouseEvent *event)
{
    return event && event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::MetaModifier)
        && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick);
}

bool controlClickSelectsFirst(const QMouseEvent *event)
{
    return isControlClick(event) && event->type() == QEvent::MouseButtonPress;
}

ItemViewBehaviour::ItemViewBehaviour(QAbstractItemView *view)
    : QObject(view)
    , m_view(view)
{
    m_liveResizeTimer.setSingleShot(true);
    m_liveResizeTimer.setInterval(LiveResizeSettleInterval);
    connect(&m_liveResizeTimer, &QTimer::timeout, this, &ItemViewBehaviour::liveResizeEnded);
    // Selected text is drawn bold or not, and cells styled, by the system version: a view
    // shows a changed version at once.
    connect(ZARNSystemVersionNotifier::instance(), &ZARNSystemVersionNotifier::systemVersionChanged, this,
            [this] { m_view->viewport()->update(); });
    if (qGuiApp) {
        connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive)
                Q_EMIT applicationBecameActive();
        });
    }
    m_viewport = view->viewport();
    m_viewport->installEventFilter(this);
}

QModelIndex ItemViewBehaviour::hoveredIndex() const
{
    return m_hovered;
}

// The views paint cells themselves, so they follow the pointer as QAbstractItemView does for
// its own painting: from the viewport's hover events.
bool ItemViewBehaviour::eventFilter(QObject *watched, QEvent *event)
{
    // The viewport outlives the view's own destructor by a little; only its object is
    // compared until an event needs the view.
    if (watched != m_viewport)
        return false;
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        m_hovered = m_view->indexAt(static_cast<QHoverEvent *>(event)->position().toPoint());
        break;
    case QEvent::HoverLeave:
    case QEvent::Leave:
        m_hovered = QPersistentModelIndex();
        break;
    default:
        break;
    }
    return false;
}

ItemViewBehaviour::~ItemViewBehaviour() = default;

QMenu *ItemViewBehaviour::menu() const
{
    return m_menu;
}

void ItemViewBehaviour::setMenu(QMenu *menu)
{
    disconnect(m_menuHidden);
    m_menu = menu;
    if (menu) {
        m_menuHidden = connect(menu, &QMenu::aboutToHide, this, [this] {
            m_contextMenuItem = QPersistentModelIndex();
            m_view->viewport()->update();
        });
    }
}

QModelIndex ItemViewBehaviour::contextMenuItem() const
{
    return m_contextMenuItem;
}

void ItemViewBehaviour::popUpMenu(QMenu *menu, const QModelIndex &index, const QPoint &globalPos)
{
    if (!menu)
        return;
    m_contextMenuItem = index.siblingAtColumn(0);
    m_view->viewport()->update();
    menu->popup(globalPos);
}

void ItemViewBehaviour::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Mouse)
        return;
    const QModelIndex current = m_view->currentIndex();
    const QPoint local = current.isValid() ? m_view->visualRect(current).bottomLeft() : QPoint();
    popUpMenu(m_menu, current, m_view->viewport()->mapToGlobal(local));
}

bool ItemViewBehaviour::moveChangesSelectedRow(const std::function<void()> &passToQt) const
{
    const QPersistentModelIndex before = selectedRowItem(m_view);
    passToQt();
    return QModelIndex(before) != selectedRowItem(m_view);
}

bool ItemViewBehaviour::inDragPrep() const
{
    return m_inDragPrep;
}

void ItemViewBehaviour::startDrag(const QModelIndexList &selected, Qt::DropActions supported, Qt::DropAction defaultAction,
                                  QPoint pressPosition, const DragHooks &hooks)
{
    QAbstractItemModel *model = m_view->model();
    if (!model)
        return;
    QModelIndexList indexes;
    QRect area;
    for (const QModelIndex &index : selected) {
        if (index.flags().testFlag(Qt::ItemIsDragEnabled)) {
            indexes.append(index);
            area |= m_view->visualRect(index);
        }
    }
    std::unique_ptr<QMimeData> data(indexes.isEmpty() ? nullptr : model->mimeData(indexes));
    if (!data)
        return;

    // The image comes from the view's own drawing; while it is made, cells draw their
    // contents as if unselected.
    area &= m_view->viewport()->rect();
    m_inDragPrep = true;
    const QPixmap image = hooks.image ? hooks.image(indexes, area) : m_view->viewport()->grab(area);
    m_inDragPrep = false;

    QPointer<QDrag> drag = new QDrag(m_view);
    drag->setPixmap(image);
    drag->setMimeData(data.release());
    drag->setHotSpot(pressPosition - area.topLeft());

    const bool internalMove = m_view->dragDropMode() == QAbstractItemView::InternalMove;
    if (internalMove)
        supported &= ~Qt::CopyAction;
    Qt::DropAction action = Qt::IgnoreAction;
    if (defaultAction != Qt::IgnoreAction && supported.testFlag(defaultAction))
        action = defaultAction;
    else if (supported.testFlag(Qt::CopyAction) && !internalMove)
        action = Qt::CopyAction;

    const Qt::DropAction result = hooks.run ? hooks.run(drag, supported, action) : drag->exec(supported, action);
    if (result == Qt::MoveAction && (!internalMove || (drag && drag->target() == m_view->viewport())))
        removeMovedItems();
}

void ItemViewBehaviour::removeMovedItems() const
{
    QAbstractItemModel *model = m_view->model();
    const QItemSelection selection = m_view->selectionModel()->selection();
    if (m_view->dragDropOverwriteMode()) {
        const QModelIndexList indexes = selection.indexes();
        for (const QModelIndex &index : indexes) {
            QMap<int, QVariant> roles = model->itemData(index);
            for (QVariant &value : roles)
                value = QVariant();
            model->setItemData(index, roles);
        }
        return;
    }
    // Bottom ranges first, so that removing rows does not shift the ones still to go.
    QList<QItemSelectionRange> ranges(selection.cbegin(), selection.cend());
    std::sort(ranges.begin(), ranges.end(), [](const auto &a, const auto &b) { return a.top() > b.top(); });
    for (const QItemSelectionRange &range : std::as_const(ranges)) {
        if (range.left() == 0 && range.right() == model->columnCount(range.parent()) - 1)
            model->removeRows(range.top(), range.height(), range.parent());
    }
}

bool ItemViewBehaviour::inLiveResize() const
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) && m_liveResizeTimer.isActive();
}

void ItemViewBehaviour::noteResize()
{
    m_liveResizeTimer.start();
}

void ItemViewBehaviour::followColumnWidths(QHeaderView *header)
{
    connect(header, &QHeaderView::sectionResized, this, [this] { m_columnWidthsChanged = true; });
}

bool ItemViewBehaviour::takeColumnWidthsChanged()
{
    return std::exchange(m_columnWidthsChanged, false);
}

} // namespace BrixelPrivate
