// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTableColumn.h"

#include "TableColumnList_p.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace {

// A section size in whole pixels for a width already limited to the column's range; the
// header ignores sizes outside 0 .. maximumSectionSize(). NaN (from NaN limits) gives 0.
int sectionSizeFor(float width, const QHeaderView &header)
{
    if (std::isnan(width))
        return 0;
    const double bounded = std::clamp(double(width), 0.0, double(header.maximumSectionSize()));
    return int(std::lround(bounded));
}

} // namespace

ZARNTableColumn::ZARNTableColumn(const BrixelPrivate::TableColumnList &list, int modelColumn, const QString &identifier)
    : m_list(list)
    , m_modelColumn(modelColumn)
    , m_identifier(identifier)
{
}

ZARNTableColumn::~ZARNTableColumn() = default;

QString ZARNTableColumn::identifier() const
{
    return m_identifier;
}

void ZARNTableColumn::setIdentifier(const QString &identifier)
{
    m_identifier = identifier;
}

int ZARNTableColumn::modelColumn() const
{
    return m_modelColumn;
}

QAbstractItemView *ZARNTableColumn::tableView() const
{
    return m_list.view();
}

float ZARNTableColumn::width() const
{
    const QHeaderView *header = m_list.header();
    if (!header || header->isSectionHidden(m_modelColumn))
        return m_hiddenWidth;
    return float(header->sectionSize(m_modelColumn));
}

void ZARNTableColumn::setWidth(float width)
{
    const float limited = std::isnan(width) ? m_minWidth : std::clamp(width, m_minWidth, std::max(m_minWidth, m_maxWidth));
    QHeaderView *header = m_list.header();
    if (!header) {
        m_hiddenWidth = limited;
        return;
    }
    const int size = sectionSizeFor(limited, *header);
    m_hiddenWidth = float(size);
    // A hidden section takes the size for when it is shown again.
    header->resizeSection(m_modelColumn, size);
}

float ZARNTableColumn::minWidth() const
{
    return m_minWidth;
}

void ZARNTableColumn::setMinWidth(float minWidth)
{
    m_minWidth = minWidth;
    if (width() < minWidth)
        setWidth(minWidth);
}

float ZARNTableColumn::maxWidth() const
{
    return m_maxWidth;
}

void ZARNTableColumn::setMaxWidth(float maxWidth)
{
    m_maxWidth = maxWidth;
    if (width() > maxWidth)
        setWidth(maxWidth);
}

bool ZARNTableColumn::isEditable() const
{
    return m_editable;
}

void ZARNTableColumn::setEditable(bool editable)
{
    m_editable = editable;
}

QAbstractItemDelegate *ZARNTableColumn::dataCell() const
{
    const QAbstractItemView *view = tableView();
    if (!view)
        return nullptr;
    if (QAbstractItemDelegate *cell = view->itemDelegateForColumn(m_modelColumn))
        return cell;
    return view->itemDelegate();
}

void ZARNTableColumn::setDataCell(QAbstractItemDelegate *cell)
{
    if (QAbstractItemView *view = tableView())
        view->setItemDelegateForColumn(m_modelColumn, cell);
}

void ZARNTableColumn::clearIndicatorImage()
{
    QHeaderView *header = m_list.header();
    if (!header || header->sortIndicatorSection() != m_modelColumn)
        return;
    // Only the arrow goes: a sorting view would re-sort on the header's signal.
    const QSignalBlocker blocker(header);
    header->setSortIndicator(-1, header->sortIndicatorOrder());
    header->viewport()->update();
}

bool ZARNTableColumn::isHidden() const
{
    const QHeaderView *header = m_list.header();
    return header && header->isSectionHidden(m_modelColumn);
}
