// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSIndexSet_Category.h"

#include "NumberText_p.h"

namespace {

qint32 intValue(const QVariant &number)
{
    switch (number.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return Brixel::truncatedToInt32(number.toDouble());
    default:
        // Keeps the low 32 bits, as a narrowing integer conversion does.
        return qint32(number.toLongLong());
    }
}

} // namespace

ZARNIndexSet Brixel::indexSetFromRowNumbers(const QVariantList &rowNumbers)
{
    ZARNIndexSet indexes;
    for (const QVariant &number : rowNumbers)
        indexes.insert(intValue(number));
    return indexes;
}
