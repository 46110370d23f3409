// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTextDatePicker.h"

#include "../ZARNDatePickerPlugin.h"

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
    return date().startOfDay();
}

void ZARNTextDatePicker::setDateValue(const QDateTime &value)
{
    if (value.isValid())
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
