// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

class QTreeView;

namespace Brixel {

/**
 * Hides the disclosure markers that Qt draws for \a view: the markers of top-level items go
 * (QTreeView::setRootIsDecorated(false)), and a ZARNOutlineView also stops drawing Qt's
 * branch indicators at every level (ZARNOutlineView::setDrawsBranchIndicators(false)), so
 * that only the markers it draws itself remain. A plain QTreeView keeps the markers of
 * nested items, which only its style can hide. The items stay expandable from the keyboard
 * and in code. A null view does nothing.
 *
 * \code
 * auto *sidebar = new ZARNOutlineView(parent);
 * zapIndentationMarker(sidebar);
 * \endcode
 */
BRIXEL_EXPORT void zapIndentationMarker(QTreeView *view);

} // namespace Brixel
