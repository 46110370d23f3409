// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNCalendarDateFormatter.h"

#include "../platform/ZARNCalendarDate.h"
#include "../platform/ZARNLocalizedString.h"

ZARNCalendarDateFormatter::ZARNCalendarDateFormatter(const QString &dateFormat)
    : m_dateFormat(dateFormat)
{
}

QString ZARNCalendarDateFormatter::dateFormat() const
{
    return m_dateFormat;
}

QString ZARNCalendarDateFormatter::stringForObjectValue(const QVariant &object) const
{
    if (!object.canConvert<ZARNCalendarDate>())
        return QStringLiteral("");
    return object.value<ZARNCalendarDate>().descriptionWithCalendarFormat(m_dateFormat);
}

bool ZARNCalendarDateFormatter::getObjectValue(QVariant *object, const QString &string, QString *errorDescription) const
{
    const std::optional<ZARNCalendarDate> date = ZARNCalendarDate::dateWithString(string, m_dateFormat);
    if (!date) {
        if (errorDescription)
            *errorDescription = Brixel::ZARNLocalizedString("Invalid date");
        return false;
    }
    if (object)
        *object = QVariant::fromValue(*date);
    return true;
}
