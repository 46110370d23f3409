// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include "../platform/ZARNAttributedString.h"
#include "../platform/ZARNShadow.h"
#include <Brixel/brixel_export.h>

#include <QFont>

namespace BrixelPrivate {

/// One point below the text, blur 1.0, black at \a alpha.
BRIXEL_AUTOTEST_EXPORT ZARNShadow blackShadowWithAlpha(float alpha);

/// The shadow under the text of selected cells (ZARNTableView::standardShadow()).
BRIXEL_AUTOTEST_EXPORT const ZARNShadow &standardCellShadow();

/**
 * \a text restyled for a selected row, on a copy:
 * - \a systemVersion below 0x1040: white foreground on every character that has attributes
 *   (see replaceAttribute()), then standardCellShadow() on every character;
 * - 0x1040 and later: the standard shadow on every character, then the bold form of the font
 *   at the first character (or of \a cellFont when that character has none) on every
 *   character, then white foreground on every character.
 *
 * Empty text is returned as it is.
 *
 * \code
 * const ZARNAttributedString shown = BrixelPrivate::highlightedCellText(value, cell->font(), 0x1039);
 * \endcode
 */
BRIXEL_AUTOTEST_EXPORT ZARNAttributedString highlightedCellText(const ZARNAttributedString &text, const QFont &cellFont,
                                                       quint32 systemVersion);

} // namespace BrixelPrivate
