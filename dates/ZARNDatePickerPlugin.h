// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtPlugin>

class QWidget;

/**
 * The interface of the "DatePicker" plug-in, which supplies the text date picker the date
 * range panel uses from system version 0x1040 on. The library builds one (a QDateEdit with a
 * calendar pop-up button) and installs it as "brixel/DatePicker" in Qt's plug-in folder; an
 * application may ship its own under the same name in its plug-in path, which is searched
 * first.
 *
 * A picker made by createTextDatePicker() offers four operations: its geometry (set by the
 * caller), the invokable setShowsDatePickerButton(bool), and the QDateTime property
 * "dateValue" (read and written).
 */
class ZARNDatePickerPlugin
{
public:
    virtual ~ZARNDatePickerPlugin() = default;
    /// A new text date picker, a child of \a parent.
    virtual QWidget *createTextDatePicker(QWidget *parent) = 0;
};

#define ZARNDatePickerPlugin_iid "org.brixel.ZARNDatePickerPlugin/1.0"
Q_DECLARE_INTERFACE(ZARNDatePickerPlugin, ZARNDatePickerPlugin_iid)
