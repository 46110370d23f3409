// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSIndexSet_Category.h"

#include <cmath>
#include <limits>

namespace {

// Truncation toward zero, with the one result x86 gives for every value that has no 32-bit
// integer: NaN, the infinities and everything outside the range.
qint32 truncatedInt32(double value)
{
    constexpr double limit = 2147483648.0;
    if (!(value > -limit - 1.0 && value < limit))
        return std::numeric_limits<qint32>::min();
    return qint32(std::trunc(value));
}

qint32 intValue(const QVariant &number)
{
    switch (number.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return truncatedInt32(number.toDouble());
    default:
        // Keeps the low 32 bits, as a narrowing integer conversion does.
        return qint32(number.toLongLong());
    }
}

} // namespace

ZARNIndexSet indexSetFromRowNumbers(const QVariantList &rowNumbers)
{
    ZARNIndexSet indexes;
    for (const QVariant &number : rowNumbers)
        indexes.insert(intValue(number));
    return indexes;
}
