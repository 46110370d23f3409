// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTextDatePicker.h"

#include "../ZARNDatePickerPlugin.h"

#include <QTimeZone>

ZARNTextDatePicker::ZARNTextDatePicker(QWidget *parent)
    : QDateEdit(parent)
{
    setDisplayFormat(QLocale().dateFormat(QLocale::ShortFormat));
}

void ZARNTextDatePicker::setShowsDatePickerButton(bool shows)
{
    setCalendarPopup(shows);
}

QDateTime ZARNTextDatePicker::dateValue() const
{
    // Only the day is edited: the time of day and the zone given last stay as they were.
    if (!m_value.isValid())
        return date().startOfDay();
    return QDateTime(date(), m_value.time(), m_value.timeZone());
}

void ZARNTextDatePicker::setDateValue(const QDateTime &value)
{
    if (!value.isValid())
        return;
    m_value = value;
    setDate(value.date());
}

/// The plug-in object Qt loads: it makes ZARNTextDatePickers.
class DatePickerPlugin : public QObject, public ZARNDatePickerPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZARNDatePickerPlugin_iid)
    Q_INTERFACES(ZARNDatePickerPlugin)
public:
    QWidget *createTextDatePicker(QWidget *parent) override { return new ZARNTextDatePicker(parent); }
};

#include "ZARNTextDatePicker.moc"
