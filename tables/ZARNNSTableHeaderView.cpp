// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSTableHeaderView.h"

#include "ZARNNSTableColumnAdditions.h"
#include "TableColumnList_p.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QStyle>

#include <cmath>

namespace {

// How close to a column's right edge a double-click must be to fit that column.
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
    if (!showsResizeCursorAt(int(std::floor(x))))
        return nullptr;
    ZARNTableColumn *nearest = nullptr;
    qreal nearestDistance = dividerReach;
    for (ZARNTableColumn *column : columns().tableColumns()) {
        const int logical = column->modelColumn();
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

bool ZARNNSTableHeaderView::showsResizeCursorAt(int x) const
{
    const int handle = sectionHandleAt(x);
    return handle >= 0 && sectionResizeMode(handle) == Interactive;
}

// The section whose edge is at x, as QHeaderView decides where to offer resizing: within the
// style's grip margin of a section's trailing edge, or of its leading edge, which belongs to
// the shown section before it.
int ZARNNSTableHeaderView::sectionHandleAt(int x) const
{
    int visual = visualIndexAt(x);
    if (visual < 0)
        return -1;
    const int logical = logicalIndex(visual);
    const int start = sectionViewportPosition(logical);
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    bool atLeading = x < start + grip;
    bool atTrailing = x > start + sectionSize(logical) - grip;
    if (isRightToLeft())
        std::swap(atLeading, atTrailing);
    if (atLeading) {
        while (--visual >= 0)
            if (!isSectionHidden(logicalIndex(visual)))
                return logicalIndex(visual);
        return -1;
    }
    return atTrailing ? logical : -1;
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
