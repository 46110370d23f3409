// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TableColumnList_p.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>

#include <algorithm>

namespace BrixelPrivate {

TableColumnList::TableColumnList(QAbstractItemView *view, QHeaderView *header, QObject *parent)
    : QObject(parent)
    , m_view(view)
    , m_header(header)
{
    followModel();
}

TableColumnList::~TableColumnList() = default;

QAbstractItemView *TableColumnList::view() const
{
    return m_view;
}

QHeaderView *TableColumnList::header() const
{
    return m_header;
}

QList<ZARNTableColumn *> TableColumnList::tableColumns() const
{
    followModel();
    QList<ZARNTableColumn *> shown;
    if (!m_header)
        return shown;
    for (int visual = 0; visual < m_header->count(); ++visual) {
        const int logical = m_header->logicalIndex(visual);
        if (!m_header->isSectionHidden(logical))
            if (ZARNTableColumn *column = columnForModelColumn(logical))
                shown.append(column);
    }
    return shown;
}

int TableColumnList::numberOfColumns() const
{
    return int(tableColumns().size());
}

ZARNTableColumn *TableColumnList::columnAt(int index) const
{
    return tableColumns().value(index, nullptr);
}

int TableColumnList::columnIndex(const ZARNTableColumn *column) const
{
    if (!column)
        return -1;
    return int(tableColumns().indexOf(column));
}

int TableColumnList::columnWithIdentifier(const QString &identifier) const
{
    const QList<ZARNTableColumn *> shown = tableColumns();
    const auto found = std::find_if(shown.cbegin(), shown.cend(),
                                    [&](const ZARNTableColumn *column) { return column->identifier() == identifier; });
    return found == shown.cend() ? -1 : int(found - shown.cbegin());
}

ZARNTableColumn *TableColumnList::tableColumnWithIdentifier(const QString &identifier) const
{
    return columnAt(columnWithIdentifier(identifier));
}

ZARNTableColumn *TableColumnList::columnForModelColumn(int modelColumn) const
{
    followModel();
    if (modelColumn < 0 || modelColumn >= int(m_columns.size()))
        return nullptr;
    // Column objects are made when first asked for, so a model of very many columns costs
    // nothing until its columns are used.
    std::unique_ptr<ZARNTableColumn> &column = m_columns[size_t(modelColumn)];
    if (!column)
        column = makeColumn(modelColumn);
    return column.get();
}

int TableColumnList::firstShownModelColumn() const
{
    followModel();
    if (!sectionCount())
        return -1;
    for (int visual = 0; visual < m_header->count(); ++visual) {
        const int logical = m_header->logicalIndex(visual);
        if (!m_header->isSectionHidden(logical))
            return logical;
    }
    return -1;
}

int TableColumnList::lastShownModelColumn() const
{
    followModel();
    if (!sectionCount())
        return -1;
    for (int visual = m_header->count() - 1; visual >= 0; --visual) {
        const int logical = m_header->logicalIndex(visual);
        if (!m_header->isSectionHidden(logical))
            return logical;
    }
    return -1;
}

bool TableColumnList::hideColumn(int index)
{
    ZARNTableColumn *column = columnAt(index);
    if (!column)
        return false;
    column->clearIndicatorImage();
    column->m_hiddenWidth = column->width();
    m_hidden.append(column);
    m_header->hideSection(column->modelColumn());
    return true;
}

bool TableColumnList::hideColumnWithIdentifier(const QString &identifier)
{
    return hideColumn(columnWithIdentifier(identifier));
}

ZARNTableColumn *TableColumnList::hiddenTableColumnWithIdentifier(const QString &identifier) const
{
    followModel();
    if (identifier.isNull())
        return nullptr;
    const auto found = std::find_if(m_hidden.cbegin(), m_hidden.cend(),
                                    [&](const ZARNTableColumn *column) { return column->identifier() == identifier; });
    return found == m_hidden.cend() ? nullptr : *found;
}

bool TableColumnList::showColumnWithIdentifier(const QString &identifier)
{
    ZARNTableColumn *column = hiddenTableColumnWithIdentifier(identifier);
    if (!column)
        return false;
    const int logical = column->modelColumn();
    m_header->showSection(logical);
    m_header->moveSection(m_header->visualIndex(logical), m_header->count() - 1);
    m_hidden.removeOne(column);
    return true;
}

QList<ZARNTableColumn *> TableColumnList::hiddenTableColumns() const
{
    followModel();
    return m_hidden;
}

// Qt tells nobody when a view gets another model, so the list catches up whenever it is used.
void TableColumnList::followModel() const
{
    const_cast<TableColumnList *>(this)->syncWithModel();
}

void TableColumnList::syncWithModel()
{
    QAbstractItemModel *model = m_view && m_header ? m_view->model() : nullptr;
    if (model != m_model || (!model && !m_columns.empty())) {
        // The header carries section states over to another model; the columns this list
        // hid belong to the old one, so their sections are shown again.
        for (const ZARNTableColumn *column : std::as_const(m_hidden))
            if (m_header && column->modelColumn() < m_header->count())
                m_header->showSection(column->modelColumn());
        m_hidden.clear();
        m_columns.clear();
        attachToModel(model);
    }
    // Normally the model's signals keep both in step; this also covers a model first seen.
    if (int(m_columns.size()) != sectionCount())
        resizeColumns(sectionCount());
}

// A header keeps its sections when its model is destroyed; without a model there are no
// columns.
int TableColumnList::sectionCount() const
{
    return m_model && m_header ? m_header->count() : 0;
}

void TableColumnList::attachToModel(QAbstractItemModel *model)
{
    for (const QMetaObject::Connection &connection : std::as_const(m_modelConnections))
        disconnect(connection);
    m_modelConnections.clear();
    m_model = model;
    if (!model)
        return;
    // The header connected to the model when the view got it, before these connections, so it
    // has updated its sections by the time these run.
    m_modelConnections = {
        connect(model, &QAbstractItemModel::columnsInserted, this, &TableColumnList::insertColumns),
        connect(model, &QAbstractItemModel::columnsRemoved, this, &TableColumnList::removeColumns),
        connect(model, &QAbstractItemModel::columnsMoved, this, &TableColumnList::moveColumns),
        connect(model, &QAbstractItemModel::modelReset, this, [this] {
            resizeColumns(sectionCount());
            keepHiddenListConsistent();
        }),
    };
}

void TableColumnList::resizeColumns(int count)
{
    const int kept = std::min(count, int(m_columns.size()));
    m_hidden.removeIf([kept](const ZARNTableColumn *column) { return column->modelColumn() >= kept; });
    m_columns.resize(size_t(count));
}

void TableColumnList::insertColumns(const QModelIndex &parent, int first, int last)
{
    if (!isHeaderRoot(parent) || first < 0 || first > int(m_columns.size()) || last < first)
        return;
    std::vector<std::unique_ptr<ZARNTableColumn>> inserted(size_t(last - first + 1));
    m_columns.insert(m_columns.begin() + first, std::make_move_iterator(inserted.begin()),
                     std::make_move_iterator(inserted.end()));
    renumberColumns();
}

void TableColumnList::removeColumns(const QModelIndex &parent, int first, int last)
{
    if (!isHeaderRoot(parent))
        return;
    first = std::max(first, 0);
    last = std::min(last, int(m_columns.size()) - 1);
    if (last < first)
        return;
    m_hidden.removeIf([=](const ZARNTableColumn *column) {
        return column->modelColumn() >= first && column->modelColumn() <= last;
    });
    m_columns.erase(m_columns.begin() + first, m_columns.begin() + last + 1);
    renumberColumns();
}

void TableColumnList::moveColumns(const QModelIndex &sourceParent, int first, int last,
                                  const QModelIndex &destinationParent, int destination)
{
    const int count = int(m_columns.size());
    if (!isHeaderRoot(sourceParent) || !isHeaderRoot(destinationParent) || first < 0 || last < first
        || last >= count || destination < 0 || destination > count
        || (destination >= first && destination <= last + 1))
        return;
    const auto begin = m_columns.begin();
    if (destination < first)
        std::rotate(begin + destination, begin + first, begin + last + 1);
    else
        std::rotate(begin + first, begin + last + 1, begin + destination);
    renumberColumns();
}

// After a reset the header may have shown sections again; a column it shows is no longer
// hidden by the list either.
void TableColumnList::keepHiddenListConsistent()
{
    m_hidden.removeIf([](const ZARNTableColumn *column) { return !column->isHidden(); });
}

void TableColumnList::renumberColumns()
{
    for (size_t modelColumn = 0; modelColumn < m_columns.size(); ++modelColumn)
        if (m_columns[modelColumn])
            m_columns[modelColumn]->m_modelColumn = int(modelColumn);
}

std::unique_ptr<ZARNTableColumn> TableColumnList::makeColumn(int modelColumn) const
{
    const QString identifier = m_model ? m_model->headerData(modelColumn, Qt::Horizontal).toString() : QString();
    return std::unique_ptr<ZARNTableColumn>(new ZARNTableColumn(*this, modelColumn, identifier));
}

bool TableColumnList::isHeaderRoot(const QModelIndex &parent) const
{
    return m_header && parent == m_header->rootIndex();
}

} // namespace BrixelPrivate
