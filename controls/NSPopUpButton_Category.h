// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

class QComboBox;

/**
 * \file
 * Selecting a combo box item by tag. An item's tag is its data (Qt::UserRole) as an int; an
 * item whose data is not a number has tag 0, like a menu item whose tag was never set.
 *
 * This is the selection by tag that tells its caller whether it found the item; the one that
 * clears the selection instead is selectItemWithTagOrClear() (ZARNNSPopUpButtonAdditions.h).
 */

namespace Brixel {

/**
 * Selects the first item of \a button whose tag is \a tag and returns true; returns false and
 * leaves the selection as it was when there is none, or when \a button is null.
 *
 * \code
 * combo->addItem(tr("Small"), 1);
 * combo->addItem(tr("Large"), 2);
 * if (!selectItemWithTag(combo, savedSize))
 *     combo->setCurrentIndex(0);
 * \endcode
 */
BRIXEL_EXPORT bool selectItemWithTag(QComboBox *button, int tag);

} // namespace Brixel
