// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

class QComboBox;

/**
 * \file
 * Finding and selecting combo box items by tag, where the item's tag is its data
 * (Qt::UserRole) as an int, as for selectItemWithTag() (NSPopUpButton_Category.h). A combo box
 * addresses its items by index, so an item is given as its index here.
 */

namespace Brixel {

/// The index of the first item of \a button whose tag is \a tag; -1 when there is none or when
/// \a button is null.
BRIXEL_EXPORT int itemWithTag(const QComboBox *button, int tag);

/**
 * Selects the first item of \a button whose tag is \a tag; when there is none, clears the
 * selection (current index -1). A null button is left alone. Use selectItemWithTag() instead
 * to keep the selection and learn whether the tag was found.
 */
BRIXEL_EXPORT void selectItemWithTagOrClear(QComboBox *button, int tag);

} // namespace Brixel
