// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QList>

class QAction;
class QMenu;

/**
 * \file
 * Filling a menu from a list of actions and reading its last item. A null menu is allowed:
 * nothing is added to it and it has no last item.
 */

namespace Brixel {

/**
 * Adds \a items to the end of \a menu, in order; null entries are skipped.
 *
 * \code
 * addItems(menu, {openAction, saveAction});
 * \endcode
 */
BRIXEL_EXPORT void addItems(QMenu *menu, const QList<QAction *> &items);

/// The last action of \a menu (separators included), nullptr for an empty or null menu.
BRIXEL_EXPORT QAction *lastItem(const QMenu *menu);

} // namespace Brixel
