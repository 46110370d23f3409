// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNIndexSet.h"
#include "../platform/ZARNRange.h"

#include <QList>

/**
 * \file
 * Finding several elements of a list at once. Works on any QList<T> whose elements compare
 * with operator==.
 */

namespace Brixel {

/**
 * The indexes in \a array of the elements of \a objects: for each of them the index of the
 * first equal element (operator==, so pointers compare by address and values by value). An
 * object that \a array does not hold adds ZARNNotFound to the set.
 *
 * \code
 * const QStringList names{u"a"_s, u"b"_s, u"c"_s};
 * indexesOfObjects(names, {u"c"_s, u"a"_s});    // {0, 2}
 * indexesOfObjects(names, {u"x"_s});            // {ZARNNotFound}
 * \endcode
 */
template<typename T>
ZARNIndexSet indexesOfObjects(const QList<T> &array, const QList<T> &objects)
{
    ZARNIndexSet indexes;
    for (const T &object : objects) {
        const qsizetype index = array.indexOf(object);
        indexes.insert(index < 0 ? ZARNNotFound : index);
    }
    return indexes;
}

} // namespace Brixel
