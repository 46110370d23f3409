// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNIndexSet.h"

#include <QList>

#include <stdexcept>

/**
 * \file
 * Picking list elements by index set. Works on any QList<T>.
 */

namespace Brixel {

/**
 * The elements of \a array at \a indexes, in ascending index order. An empty set gives an empty
 * list.
 *
 * \code
 * objectsAtIndexes(QStringList{u"a"_s, u"b"_s, u"c"_s}, {2, 0});   // {"a", "c"}
 * \endcode
 *
 * Throws std::out_of_range when an index is negative or not below the list's size.
 */
template<typename T>
QList<T> objectsAtIndexes(const QList<T> &array, const ZARNIndexSet &indexes)
{
    QList<T> objects;
    objects.reserve(qsizetype(indexes.size()));
    for (const qsizetype index : indexes) {
        if (index < 0 || index >= array.size())
            throw std::out_of_range("objectsAtIndexes: index beyond the list");
        objects.append(array.at(index));
    }
    return objects;
}

} // namespace Brixel
