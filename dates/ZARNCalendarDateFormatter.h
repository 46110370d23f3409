// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include "../platform/ZARNFormatter.h"

/**
 * A formatter between ZARNCalendarDate values and text in one %-format, for editing dates in
 * line edits (with ZARNFormatterValidator) and item views.
 *
 * \code
 * auto formatter = std::make_shared<ZARNCalendarDateFormatter>(u"%1m/%e/%y"_s);
 * formatter->stringForObjectValue(QVariant::fromValue(ZARNCalendarDate::dateWithYear(2024, 5, 15, 0, 0, 0)));
 * // "5/15/24"
 * \endcode
 *
 * Text is read with ZARNCalendarDate::dateWithString() in the same format; phrases such as
 * "tomorrow" are not understood. A value that is not a ZARNCalendarDate is shown as empty text.
 */
class BRIXEL_EXPORT ZARNCalendarDateFormatter : public ZARNFormatter
{
public:
    explicit ZARNCalendarDateFormatter(const QString &dateFormat);

    QString dateFormat() const;

    QString stringForObjectValue(const QVariant &object) const override;
    bool getObjectValue(QVariant *object, const QString &string, QString *errorDescription) const override;

private:
    QString m_dateFormat;
};
