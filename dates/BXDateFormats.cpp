// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXDateFormats.h"

#include "DateFieldOrder_p.h"

#include "../platform/ZARNSystemVersion.h"
#include "../platform/ZARNUserDefaults.h"

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

QString Brixel::userShortDateFormat()
{
    // Only a missing default falls back to the locale; a stored empty format is the user's.
    const QString key = u"NSShortDateFormatString"_s;
    return ZARNUserDefaults::objectForKey(key).isValid() ? ZARNUserDefaults::stringForKey(key)
                                                         : localeShortDateFormat();
}

QString Brixel::localeShortDateFormat(const QLocale &locale)
{
    // Runs of Qt's pattern letters ("d", "dd", "M", "MMM", "yy", "yyyy", ...) become %-elements.
    const QString pattern = locale.dateFormat(QLocale::ShortFormat);
    QString format;
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar letter = pattern.at(i);
        qsizetype run = 1;
        while (i + run < pattern.size() && pattern.at(i + run) == letter)
            ++run;
        if (letter == u'd')
            format += run >= 3 ? u"%a"_s : u"%d"_s;
        else if (letter == u'M')
            format += run >= 4 ? u"%B"_s : run == 3 ? u"%b"_s : u"%m"_s;
        else if (letter == u'y')
            format += run >= 4 ? u"%Y"_s : u"%y"_s;
        else if (letter != u'\'')
            format += QString(run, letter);
        i += run;
    }
    return format;
}
