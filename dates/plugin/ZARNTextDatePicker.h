// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateEdit>
#include <QDateTime>

/**
 * The text date picker of the "DatePicker" plug-in: a date edit whose calendar pop-up button
 * can be shown or hidden. Its date is a QDateTime: the day shown, at the time of day and in the
 * zone of the value given last (the start of the day, in local time, before any).
 */
class ZARNTextDatePicker : public QDateEdit
{
    Q_OBJECT
    Q_PROPERTY(QDateTime dateValue READ dateValue WRITE setDateValue)
public:
    explicit ZARNTextDatePicker(QWidget *parent = nullptr);

    Q_INVOKABLE void setShowsDatePickerButton(bool shows);
    QDateTime dateValue() const;
    void setDateValue(const QDateTime &value);

private:
    QDateTime m_value;
};
