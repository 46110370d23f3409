// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSTableHeaderView.h"

#include "ZARNNSTableColumnAdditions.h"
#include "TableColumnList_p.h"

#include <QAbstractItemView>
#include <QMouseEvent>

#include <cmath>

namespace {

// How close to a column's right edge a double-click must be to fit that column, whatever
// grip margin the style gives Qt's own resize handles.
constexpr qreal dividerReach = 10.0;

} // namespace

ZARNNSTableHeaderView::ZARNNSTableHeaderView(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
}

ZARNNSTableHeaderView::~ZARNNSTableHeaderView() = default;

bool ZARNNSTableHeaderView::resizeColumnsOnDoubleClick() const
{
    return m_resizeColumnsOnDoubleClick;
}

void ZARNNSTableHeaderView::setResizeColumnsOnDoubleClick(bool resize)
{
    m_resizeColumnsOnDoubleClick = resize;
}

void ZARNNSTableHeaderView::setColumnList(BrixelPrivate::TableColumnList *columns)
{
    m_columns = columns;
}

ZARNTableColumn *ZARNNSTableHeaderView::columnToFitAt(qreal x)
{
    ZARNTableColumn *nearest = nullptr;
    qreal nearestDistance = dividerReach;
    for (ZARNTableColumn *column : columns().tableColumns()) {
        const int logical = column->modelColumn();
        if (isSectionHidden(logical) || sectionResizeMode(logical) != Interactive)
            continue;
        const qreal distance = std::abs(x - qreal(sectionViewportPosition(logical) + sectionSize(logical)));
        if (distance < nearestDistance) {
            nearest = column;
            nearestDistance = distance;
        }
    }
    return nearest;
}

// Qt delivers no mouse events to a disabled header; a header enabled on its own under a
// disabled view stays inert too.
void ZARNNSTableHeaderView::mousePressEvent(QMouseEvent *event)
{
    if (viewIsEnabled())
        QHeaderView::mousePressEvent(event);
}

void ZARNNSTableHeaderView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!viewIsEnabled())
        return;
    if (m_resizeColumnsOnDoubleClick && event->button() == Qt::LeftButton) {
        if (ZARNTableColumn *column = columnToFitAt(event->position().x())) {
            Brixel::sizeToFitData(column);
            return;
        }
    }
    QHeaderView::mouseDoubleClickEvent(event);
}

void ZARNNSTableHeaderView::mouseMoveEvent(QMouseEvent *event)
{
    if (viewIsEnabled())
        QHeaderView::mouseMoveEvent(event);
}

bool ZARNNSTableHeaderView::viewIsEnabled() const
{
    const QWidget *view = parentWidget();
    return !view || view->isEnabled();
}

BrixelPrivate::TableColumnList &ZARNNSTableHeaderView::columns()
{
    if (m_columns)
        return *m_columns;
    auto *view = qobject_cast<QAbstractItemView *>(parentWidget());
    if (!m_ownColumns || m_ownColumns->view() != view)
        m_ownColumns = std::make_unique<BrixelPrivate::TableColumnList>(view, this);
    return *m_ownColumns;
}
