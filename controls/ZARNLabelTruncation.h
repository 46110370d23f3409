// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

class QLabel;

/**
 * \file
 * Truncation of a label's text, the widget form of the truncation functions in
 * ZARNTextTruncation.h.
 *
 * \code
 * Brixel::TruncateStringInCell(titleLabel, titleLabel->width());
 * \endcode
 */

namespace Brixel {

/**
 * Shortens \a label's text in place so that it fits \a width in the label's font: the
 * longest start of the text followed by "..." that fits. Text that already fits is left
 * untouched; a null label does nothing.
 *
 * \throws std::out_of_range when even "..." alone does not fit; the label then shows "...".
 * Pass a width that holds "..." plus the margin.
 */
BRIXEL_EXPORT void TruncateStringInCell(QLabel *label, float width);

} // namespace Brixel
