// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include "TableColumnList_p.h"
#include "ZARNNSTableHeaderView.h"

#include <QPointer>

#include <memory>

class ZARNNSTableHeaderViewPrivate
{
public:
    static ZARNNSTableHeaderViewPrivate *get(ZARNNSTableHeaderView *header) { return header->d.get(); }

    /// The column objects the header works on (the view's, not owned); null: its own.
    QPointer<BrixelPrivate::TableColumnList> columns;
    std::unique_ptr<BrixelPrivate::TableColumnList> ownColumns;
    bool resizeColumnsOnDoubleClick = true;
};
