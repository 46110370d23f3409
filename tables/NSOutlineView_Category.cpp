// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSOutlineView_Category.h"

#include "ZARNOutlineView.h"

void Brixel::zapIndentationMarker(QTreeView *view)
{
    if (!view)
        return;
    view->setRootIsDecorated(false);
    if (auto *outline = qobject_cast<ZARNOutlineView *>(view))
        outline->setDrawsBranchIndicators(false);
}
