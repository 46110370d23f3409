// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNTableColumn.h"
#include <Brixel/brixel_export.h>

#include <QHeaderView>
#include <QList>
#include <QMetaObject>
#include <QPointer>

#include <memory>
#include <vector>

class QAbstractItemModel;

namespace BrixelPrivate {

/**
 * The column objects of a view: one ZARNTableColumn per model column of a QTableView,
 * QTreeView or any other item view with a horizontal QHeaderView, plus hiding and showing
 * columns by identifier.
 *
 * The view's columns are its shown header sections in visual order: tableColumns(),
 * numberOfColumns(), columnAt() and every column index here count those only. Hiding a
 * column hides its section and keeps the column in hiddenTableColumns(); showing it again
 * brings the section back as the last (rightmost) one.
 *
 * The list follows the view's model: columns inserted, removed or moved in the model, a model
 * reset (columns that still exist keep their objects, settings and hidden state, as the
 * header keeps its sections) and a new model (all column objects are made afresh). A column
 * object whose model column goes away is deleted and leaves the hidden list at once.
 *
 * \code
 * BrixelPrivate::TableColumnList columns(view, view->horizontalHeader());
 * columns.hideColumnWithIdentifier(u"Kind"_s);
 * ...
 * columns.showColumnWithIdentifier(u"Kind"_s); // now the rightmost column
 * \endcode
 *
 * The header must stay the view's horizontal header while the list exists; without a view or
 * header the list has no columns.
 */
class BRIXEL_AUTOTEST_EXPORT TableColumnList : public QObject
{
    Q_OBJECT
public:
    TableColumnList(QAbstractItemView *view, QHeaderView *header, QObject *parent = nullptr);
    ~TableColumnList() override;

    QAbstractItemView *view() const;
    QHeaderView *header() const;

    /// The shown columns, left to right.
    QList<ZARNTableColumn *> tableColumns() const;
    int numberOfColumns() const;

    /// The shown column at \a index; null when \a index is out of range.
    ZARNTableColumn *columnAt(int index) const;

    /// The index of \a column among the shown columns; -1 for a hidden, foreign or null column.
    int columnIndex(const ZARNTableColumn *column) const;

    /// The index of the first shown column whose identifier equals \a identifier, or -1.
    int columnWithIdentifier(const QString &identifier) const;

    /// The first shown column whose identifier equals \a identifier, or null.
    ZARNTableColumn *tableColumnWithIdentifier(const QString &identifier) const;

    /// The column of model column \a modelColumn, shown or hidden; null out of range.
    ZARNTableColumn *columnForModelColumn(int modelColumn) const;

    /// The model column of the leftmost shown column, or -1 when no column is shown. Cheaper
    /// than tableColumns() when only the ends are needed.
    int firstShownModelColumn() const;
    /// The model column of the rightmost shown column, or -1 when no column is shown.
    int lastShownModelColumn() const;

    /**
     * Hides the shown column at \a index: drops the sort indicator when it sits on that
     * column, appends the column to hiddenTableColumns() and hides its section. An index that
     * is negative or not below numberOfColumns() does nothing. Answers whether a column was
     * hidden.
     */
    bool hideColumn(int index);

    /// hideColumn() of columnWithIdentifier(); an unknown identifier does nothing.
    bool hideColumnWithIdentifier(const QString &identifier);

    /**
     * The first column in hiddenTableColumns() (in hiding order) whose identifier equals
     * \a identifier; null for a null identifier or when none matches.
     */
    ZARNTableColumn *hiddenTableColumnWithIdentifier(const QString &identifier) const;

    /**
     * Shows the column hiddenTableColumnWithIdentifier() finds as the last (rightmost) column
     * and takes it off the hidden list. Its former place and its sort indicator are not
     * restored. An identifier that no hidden column has does nothing. Answers whether a
     * column was shown.
     */
    bool showColumnWithIdentifier(const QString &identifier);

    /// The columns hidden by hideColumn(), in hiding order.
    QList<ZARNTableColumn *> hiddenTableColumns() const;

private:
    void followModel() const;
    void syncWithModel();
    int sectionCount() const;
    void attachToModel(QAbstractItemModel *model);
    void resizeColumns(int count);
    void insertColumns(const QModelIndex &parent, int first, int last);
    void removeColumns(const QModelIndex &parent, int first, int last);
    void moveColumns(const QModelIndex &sourceParent, int first, int last,
                     const QModelIndex &destinationParent, int destination);
    void keepHiddenListConsistent();
    void renumberColumns();
    std::unique_ptr<ZARNTableColumn> makeColumn(int modelColumn) const;
    bool isHeaderRoot(const QModelIndex &parent) const;

    QPointer<QAbstractItemView> m_view;
    QPointer<QHeaderView> m_header;
    QPointer<QAbstractItemModel> m_model;
    // Indexed by model column; an entry stays null until its column is first asked for.
    mutable std::vector<std::unique_ptr<ZARNTableColumn>> m_columns;
    QList<ZARNTableColumn *> m_hidden;
    QList<QMetaObject::Connection> m_modelConnections;
};

} // namespace BrixelPrivate
