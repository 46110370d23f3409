// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <optional>

class ZARNTableView;

/**
 * Questions a ZARNTableView asks its data source beyond what a Qt model answers. The data
 * source is the view's model: a model that also inherits this interface is asked, any other
 * model is treated as a data source that answers none of them.
 *
 * \code
 * class DownloadsModel : public QAbstractTableModel, public ZARNTableViewDataSource
 * {
 *     bool respondsToTableviewShouldSelectRow() const override { return true; }
 *     std::optional<bool> tableViewShouldSelectRow(ZARNTableView *, int row) override
 *     {
 *         return !isSeparator(row);
 *     }
 * };
 * \endcode
 */
class BRIXEL_EXPORT ZARNTableViewDataSource
{
public:
    virtual ~ZARNTableViewDataSource();

    /**
     * Whether the data source takes part in the context-click rule. A right click selects
     * the clicked row alone unless this answers true; when it does, an unselected row is
     * selected alone only if tableViewShouldSelectRow() answers true, and an already
     * selected row keeps a multiple selection intact.
     *
     * The check is separate from tableViewShouldSelectRow() on purpose: existing data
     * sources rely on answering the question without opting into the rule.
     */
    virtual bool respondsToTableviewShouldSelectRow() const { return false; }

    /// Whether a right click may select \a row; empty when the data source does not answer.
    virtual std::optional<bool> tableViewShouldSelectRow(ZARNTableView *tableView, int row);
};
