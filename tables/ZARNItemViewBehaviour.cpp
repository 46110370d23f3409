// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNItemViewBehaviour.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QDrag>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>

namespace brixel {

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
    if (current.isValid() && selection->isSelected(current))
        return current.siblingAtColumn(0);
    const QItemSelection ranges = selection->selection();
    return ranges.isEmpty() ? QModelIndex() : QModelIndex(ranges.first().topLeft()).siblingAtColumn(0);
}

void selectRowAlone(QAbstractItemView *view, const QModelIndex &item)
{
    if (!view || !item.isValid() || !view->selectionModel())
        return;
    view->selectionModel()->setCurrentIndex(item.siblingAtColumn(0),
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
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

ItemViewBehaviour::ItemViewBehaviour(QAbstractItemView *view, std::function<void()> relayout)
    : QObject(view)
    , m_view(view)
    , m_relayout(std::move(relayout))
{
    m_liveResizeTimer.setSingleShot(true);
    m_liveResizeTimer.setInterval(LiveResizeQuietMilliseconds);
    connect(&m_liveResizeTimer, &QTimer::timeout, this, &ItemViewBehaviour::endLiveResize);
    if (auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        connect(application, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive)
                Q_EMIT applicationBecameActive();
        });
    }
}

ItemViewBehaviour::~ItemViewBehaviour() = default;

QMenu *ItemViewBehaviour::menu() const
{
    return m_menu;
}

void ItemViewBehaviour::setMenu(QMenu *menu)
{
    m_menu = menu;
}

bool ItemViewBehaviour::showMenu(const QPoint &globalPos) const
{
    if (!m_menu)
        return false;
    m_menu->popup(globalPos);
    return true;
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

void ItemViewBehaviour::startDrag(const QModelIndexList &selected, Qt::DropActions supported, Qt::DropAction defaultAction)
{
    QAbstractItemModel *model = m_view->model();
    if (!model)
        return;
    QModelIndexList indexes;
    for (const QModelIndex &index : selected) {
        if (model->flags(index).testFlag(Qt::ItemIsDragEnabled))
            indexes.append(index);
    }
    QMimeData *data = indexes.isEmpty() ? nullptr : model->mimeData(indexes);
    if (!data)
        return;

    const bool internalMove = m_view->dragDropMode() == QAbstractItemView::InternalMove;
    if (internalMove)
        supported &= ~Qt::CopyAction;
    Qt::DropAction action = Qt::IgnoreAction;
    if (defaultAction != Qt::IgnoreAction && supported.testFlag(defaultAction))
        action = defaultAction;
    else if (supported.testFlag(Qt::CopyAction) && !internalMove)
        action = Qt::CopyAction;

    QPointer<QDrag> drag = new QDrag(m_view);
    drag->setMimeData(data);
    QPoint hotSpot;
    drag->setPixmap(dragImage(indexes, &hotSpot));
    drag->setHotSpot(hotSpot);
    // The persistent indexes follow the rows if the drop rearranges the model.
    QList<QPersistentModelIndex> dragged(indexes.cbegin(), indexes.cend());
    const Qt::DropAction result = drag->exec(supported, action);
    const bool droppedHere = drag && drag->target() == m_view->viewport();
    if (result == Qt::MoveAction && (!internalMove || droppedHere)) {
        QModelIndexList remaining;
        for (const QPersistentModelIndex &index : dragged) {
            if (index.isValid())
                remaining.append(index);
        }
        removeMovedRows(remaining);
    }
}

QPixmap ItemViewBehaviour::dragImage(const QModelIndexList &indexes, QPoint *hotSpot)
{
    QRect area;
    for (const QModelIndex &index : indexes)
        area |= m_view->visualRect(index);
    area &= m_view->viewport()->rect();
    *hotSpot = m_view->viewport()->mapFromGlobal(QCursor::pos()) - area.topLeft();
    if (area.isEmpty())
        return {};
    // The view draws the rows itself; the flag tells its painting that this is the drag image.
    m_inDragPrep = true;
    QPixmap image = m_view->viewport()->grab(area);
    m_inDragPrep = false;
    return image;
}

void ItemViewBehaviour::removeMovedRows(const QModelIndexList &indexes) const
{
    QAbstractItemModel *model = m_view->model();
    if (m_view->dragDropOverwriteMode()) {
        for (const QModelIndex &index : indexes)
            model->setData(index, QVariant());
        return;
    }
    QList<QPersistentModelIndex> rows;
    for (const QModelIndex &index : indexes) {
        const QPersistentModelIndex row = index.siblingAtColumn(0);
        if (!rows.contains(row))
            rows.append(row);
    }
    for (const QPersistentModelIndex &row : std::as_const(rows)) {
        if (row.isValid())
            model->removeRow(row.row(), row.parent());
    }
}

bool ItemViewBehaviour::inLiveResize() const
{
    return QCoreApplication::instance() && m_liveResizeTimer.isActive();
}

void ItemViewBehaviour::noteResize()
{
    if (m_relayout)
        m_relayout();
    m_liveResizeTimer.start();
}

void ItemViewBehaviour::endLiveResize()
{
    if (m_relayout)
        m_relayout();
    Q_EMIT liveResizeEnded();
}

} // namespace brixel
