// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNIndexSet.h"
#include <Brixel/brixel_export.h>

#include <QVariantList>

namespace Brixel {

/**
 * The index set of the 32-bit integer values of \a rowNumbers, for row numbers kept as
 * variants (settings, JSON, item data). An empty list gives an empty set.
 *
 * Each element converts as follows: an integer keeps its low 32 bits (as a signed value); a
 * floating-point number is truncated toward zero, and NaN, infinities and numbers outside the
 * 32-bit range give -2147483648; anything else converts with QVariant::toLongLong(), 0 when it
 * cannot.
 *
 * \code
 * indexSetFromRowNumbers({3, 1.9, QStringLiteral("7")});    // {1, 3, 7}
 * \endcode
 */
BRIXEL_EXPORT ZARNIndexSet indexSetFromRowNumbers(const QVariantList &rowNumbers);

} // namespace Brixel
