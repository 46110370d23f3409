// SPDX-License-Identifier: LGPL-2.1-or-later
#include "SpokenEdit_p.h"

#include <algorithm>

namespace BrixelPrivate {

TextEdit editBetween(const QString &before, const QString &after, qsizetype cursor)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype suffix = std::clamp<qsizetype>(after.size() - cursor, 0, shorter);
    if (!before.endsWith(QStringView(after).right(suffix))) {
        suffix = 0;
        while (suffix < shorter && before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix])
            ++suffix;
    }
    qsizetype prefix = 0;
    while (prefix < shorter - suffix && before[prefix] == after[prefix])
        ++prefix;
    return {{prefix, before.size() - prefix - suffix}, after.mid(prefix, after.size() - prefix - suffix)};
}

} // namespace BrixelPrivate
