// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXDateFormats.h"

#include "DateFieldOrder_p.h"

#include "../platform/ZARNSystemVersion.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace BrixelPrivate {

namespace {

qsizetype firstOf(QStringView format, QStringView letters)
{
    for (qsizetype index = 0; index < format.size(); ++index) {
        if (letters.contains(format.at(index)))
            return index;
    }
    return format.size();
}

} // namespace

DateFieldPositions dateFieldPositions(QStringView format)
{
    return {firstOf(format, u"bBm"), firstOf(format, u"de"), firstOf(format, u"yY")};
}

} // namespace BrixelPrivate

QString Brixel::DateFormatStringToShortestDateFormatString(const QString &format)
{
    const auto [m, d, y] = BrixelPrivate::dateFieldPositions(format);
    std::array<QString, 3> slots;
    slots[d <= m ? (m < y ? 1 : 2) : (m >= y ? 1 : 0)] = ZARNSystemVersion() >= 0x1030 ? u"%1m"_s : u"%m"_s;
    slots[d >= m ? (d < y ? 1 : 2) : (d >= y ? 1 : 0)] = u"%e"_s;
    slots[m <= y ? (d > y ? 1 : 2) : (d > y ? 0 : 1)] = u"%y"_s;
    return QStringList(slots.cbegin(), slots.cend()).join(u'/');
}
