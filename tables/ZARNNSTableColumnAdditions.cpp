// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSTableColumnAdditions.h"

#include "ZARNTableColumn.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QTableView>
#include <QTreeView>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// The style option the view itself gives its delegates. The member is protected; naming it
// through a derived class yields a pointer to QAbstractItemView's virtual, callable on any view.
QStyleOptionViewItem viewItemOption(const QAbstractItemView &view)
{
    struct Access : QAbstractItemView {
        using QAbstractItemView::initViewItemOption;
    };
    QStyleOptionViewItem option;
    (view.*&Access::initViewItemOption)(&option);
    return option;
}

class CellMeasure
{
public:
    CellMeasure(const QAbstractItemView &view, const ZARNTableColumn &column)
        : m_cell(column.dataCell())
        , m_option(viewItemOption(view))
        , m_column(column.modelColumn())
    {
    }

    float width(const QModelIndex &rowIndex) const
    {
        const QModelIndex index = rowIndex.siblingAtColumn(m_column);
        return m_cell ? float(m_cell->sizeHint(m_option, index).width()) : 0.0f;
    }

private:
    const QAbstractItemDelegate *m_cell;
    QStyleOptionViewItem m_option;
    int m_column;
};

// The widest shown row of the tree, each with its depth's indentation. Walks the expanded
// items with an explicit stack, so a deep tree cannot exhaust the call stack.
float widestTreeRow(const QTreeView &tree, const CellMeasure &measure, float widest)
{
    struct Level {
        QModelIndex parent;
        int nextRow;
    };
    const QAbstractItemModel &model = *tree.model();
    std::vector<Level> levels{{tree.rootIndex(), 0}};
    while (!levels.empty()) {
        const QModelIndex parent = levels.back().parent;
        const int row = levels.back().nextRow++;
        if (row >= model.rowCount(parent)) {
            levels.pop_back();
            continue;
        }
        if (tree.isRowHidden(row, parent))
            continue;
        const QModelIndex item = model.index(row, 0, parent);
        const float indentation = float(tree.indentation()) * float(levels.size() - 1);
        widest = std::max(widest, measure.width(item) + indentation);
        if (tree.isExpanded(item))
            levels.push_back({item, 0});
    }
    return widest;
}

float widestTableRow(const QAbstractItemView &view, const CellMeasure &measure, float widest)
{
    const QAbstractItemModel &model = *view.model();
    const QModelIndex root = view.rootIndex();
    const auto *table = qobject_cast<const QTableView *>(&view);
    for (int row = 0; row < model.rowCount(root); ++row)
        if (!table || !table->isRowHidden(row))
            widest = std::max(widest, measure.width(model.index(row, 0, root)));
    return widest;
}

bool isTreeColumn(const QTreeView &tree, const ZARNTableColumn &column)
{
    return column.modelColumn() == std::max(tree.treePosition(), 0);
}

} // namespace

float Brixel::dataWidth(const ZARNTableColumn *column)
{
    if (!column)
        return 0.0f;
    const QAbstractItemView *view = column->tableView();
    if (!view || !view->model())
        return column->minWidth();
    const CellMeasure measure(*view, *column);
    float width = column->minWidth();
    if (const auto *tree = qobject_cast<const QTreeView *>(view)) {
        width = widestTreeRow(*tree, measure, width) * 1.1f;
        if (isTreeColumn(*tree, *column))
            width += 16.0f;
    } else {
        width = widestTableRow(*view, measure, width) * 1.1f;
    }
    return std::trunc(width) + 4.0f;
}

void Brixel::sizeToFitData(ZARNTableColumn *column)
{
    if (column)
        column->setWidth(std::min(Brixel::dataWidth(column), column->maxWidth()));
}
