// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>

class QAbstractItemDelegate;
class QAbstractItemView;

namespace BrixelPrivate {
class TableColumnList;
}

/**
 * One column of a table or outline view: the view's horizontal header section of one model
 * column, with an identifier to find it by, width limits, an editable flag and the delegate
 * that draws its cells.
 *
 * Column objects are made and owned by the view's column list (BrixelPrivate::TableColumnList), one
 * per model column; they live until their model column is removed, the view gets another
 * model, or the list is destroyed.
 *
 * \code
 * ZARNTableColumn *size = table->tableColumnWithIdentifier(u"Size"_s);
 * size->setMinWidth(40);
 * size->setWidth(80);
 * size->setEditable(false);
 * \endcode
 */
class BRIXEL_EXPORT ZARNTableColumn
{
public:
    ZARNTableColumn(const ZARNTableColumn &) = delete;
    ZARNTableColumn &operator=(const ZARNTableColumn &) = delete;
    ~ZARNTableColumn();

    /// The name the column is found by. It starts as the model's horizontal header text of the
    /// column at the time the column object was made (a null string when the model has none)
    /// and does not follow later header changes.
    QString identifier() const;
    void setIdentifier(const QString &identifier);

    /// The model column (the header's logical section) this column shows.
    int modelColumn() const;

    /// The view the column belongs to; null once that view is gone.
    QAbstractItemView *tableView() const;

    /**
     * The column's width: the size of its header section. A hidden column answers the width
     * it had when it was hidden, or the last width set since.
     */
    float width() const;

    /**
     * Resizes the header section to \a width limited to minWidth() .. maxWidth() and then to
     * what the header can hold (0 .. its maximumSectionSize()), rounded to whole pixels.
     * NaN sets minWidth(). The limits apply to widths set here (and by sizeToFitData()); a
     * user dragging the divider is held only by the header's own section size limits.
     */
    void setWidth(float width);

    /// The smallest width setWidth() gives; 10 by default. Setting it widens a narrower column.
    float minWidth() const;
    void setMinWidth(float minWidth);

    /// The largest width setWidth() gives; 1000000 by default. Setting it narrows a wider column.
    float maxWidth() const;
    void setMaxWidth(float maxWidth);

    /// Whether the column's cells may be edited, unless the view's delegate decides; true by
    /// default.
    bool isEditable() const;
    void setEditable(bool editable);

    /**
     * The delegate that draws and sizes the column's cells: the view's delegate for this
     * model column, else the view's item delegate; null without a view.
     */
    QAbstractItemDelegate *dataCell() const;

    /// Makes \a cell the view's delegate for this model column (not owned; null gives the
    /// column back to the view's item delegate). Does nothing without a view.
    void setDataCell(QAbstractItemDelegate *cell);

    /**
     * Drops the header's sort indicator when it sits on this column. Only the arrow goes: the
     * view is not re-sorted, and an indicator on another column stays.
     */
    void clearIndicatorImage();

    /// Whether the column's header section is hidden.
    bool isHidden() const;

private:
    friend class BrixelPrivate::TableColumnList;
    ZARNTableColumn(const BrixelPrivate::TableColumnList &list, int modelColumn, const QString &identifier);

    const BrixelPrivate::TableColumnList &m_list;
    int m_modelColumn;
    QString m_identifier;
    float m_minWidth = 10.0f;
    float m_maxWidth = 1.0e6f;
    float m_hiddenWidth = 0.0f;
    bool m_editable = true;
};
