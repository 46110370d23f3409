// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSTableHeaderView.h"
#include "ZARNNSTableHeaderView_p.h"

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
    , d(std::make_unique<ZARNNSTableHeaderViewPrivate>())
{
}

ZARNNSTableHeaderView::~ZARNNSTableHeaderView() = default;

bool ZARNNSTableHeaderView::resizeColumnsOnDoubleClick() const
{
    return d->resizeColumnsOnDoubleClick;
}

void ZARNNSTableHeaderView::setResizeColumnsOnDoubleClick(bool resize)
{
    d->resizeColumnsOnDoubleClick = resize;
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
    if (d->resizeColumnsOnDoubleClick && event->button() == Qt::LeftButton) {
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
    if (d->columns)
        return *d->columns;
    auto *view = qobject_cast<QAbstractItemView *>(parentWidget());
    if (!d->ownColumns || d->ownColumns->view() != view)
        d->ownColumns = std::make_unique<BrixelPrivate::TableColumnList>(view, this);
    return *d->ownColumns;
}
