// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include "../platform/ZARNCalendarDate.h"

#include <QWidget>

#include <memory>

class QLabel;
class QLineEdit;

/**
 * Three small text fields for a date (month, day and year), each with a caption underneath
 * and "/" between them, in the order of the user's short date format.
 *
 * \code
 * auto *picker = new BXLegacyDatePicker(panel);
 * picker->setDate(ZARNCalendarDate::dateWithYear(2007, 3, 5, 0, 0, 0));   // shows 3 / 5 / 2007
 * \endcode
 *
 * The order comes from the user's short date format (Brixel::userShortDateFormat(): the user
 * default "NSShortDateFormatString", else the locale's). setDateFormat() re-orders the fields at any time: the fields move
 * to fixed positions for each of the six orders, and the keyboard focus goes through them in
 * the order they are shown, between the widgets before and after the picker. A format whose
 * three kinds of field cannot be ordered is stored but moves nothing.
 *
 * The fields only show: date() is the date last given to setDate() (now, at first) and typing
 * does not change it. Each edit the user makes in a field is logged (category "brixel.dates",
 * at info level); the text setDate() puts in is not. The picker's size hint encloses its fields.
 */
class BRIXEL_EXPORT BXLegacyDatePicker : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString dateFormat READ dateFormat WRITE setDateFormat)
public:
    explicit BXLegacyDatePicker(QWidget *parent = nullptr);
    ~BXLegacyDatePicker() override;

    /// The format last given to setDateFormat(); null before.
    QString dateFormat() const;
    /// Stores \a format and lays the fields out in its order; a null string is ignored.
    void setDateFormat(const QString &format);

    ZARNCalendarDate date() const;
    /// Stores \a date and shows its month, day and year without leading zeros.
    void setDate(const ZARNCalendarDate &date);

    QLineEdit *monthField() const;
    QLineEdit *dayField() const;
    QLineEdit *yearField() const;
    QLabel *monthTitleField() const;
    QLabel *dayTitleField() const;
    QLabel *yearTitleField() const;
    QLabel *separatorField() const;
    QLabel *separator2Field() const;

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Does nothing: typed text never flows back into date().
    void syncDateFromInterface();

private:
    void placeVertically();

    std::unique_ptr<class BXLegacyDatePickerPrivate> const d;
};
