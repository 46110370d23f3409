// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNCalendarDate.h"
#include "../windows/ZARNWindow.h"

#include <optional>

class QPushButton;
class ZARNChiseledTextField;

/**
 * A small modal window that asks for a "From" and a "To" date, built in code.
 *
 * \code
 * BXDateRangePanel panel(QPointF(), lastWeekStart, lastWeekEnd);
 * if (panel.run())
 *     showRange(panel.fromDate(), panel.toDate());
 * \endcode
 *
 * From system version 0x1040 on the dates are entered with the text date pickers of the
 * "DatePicker" plug-in (see ZARNDatePickerPlugin); when the plug-in is missing the panel has no
 * entry controls, lays itself out as if they were empty, and still runs. Below 0x1040 they are
 * line edits in the shortest date format (Brixel::DateFormatStringToShortestDateFormatString())
 * of the user's short date format (Brixel::userShortDateFormat()), which show today's date
 * until run() shows the stored ones.
 *
 * run() shows the panel centred, modal for the whole application, and returns true once OK (or
 * Return) is pressed; Escape and the window's close control do nothing, and the panel has no
 * close, minimise or resize control of its own. OK stays in the panel while the focused line
 * edit holds text it cannot read; otherwise it stores both dates as entered, a reversed range
 * included, and a date that cannot be read becomes today (from ZARNClock).
 */
class BRIXEL_EXPORT BXDateRangePanel : public ZARNWindow
{
    Q_OBJECT
public:
    /// A panel for the range \a from to \a to (a missing date becomes today). \a origin is not
    /// used: run() centres the panel.
    BXDateRangePanel(QPointF origin, const std::optional<ZARNCalendarDate> &from,
                     const std::optional<ZARNCalendarDate> &to, QWidget *parent = nullptr);
    ~BXDateRangePanel() override;

    ZARNCalendarDate fromDate() const;
    /// Stores \a date, or today when there is none. The two dates are never compared.
    void setFromDate(const std::optional<ZARNCalendarDate> &date);
    ZARNCalendarDate toDate() const;
    void setToDate(const std::optional<ZARNCalendarDate> &date);

    /// The entry controls: plug-in pickers, line edits, or null without the plug-in.
    QWidget *fromObject() const;
    QWidget *toObject() const;
    ZARNChiseledTextField *fromLabel() const;
    ZARNChiseledTextField *toLabel() const;
    QPushButton *okButton() const;

    /// Shows the stored dates, centres the panel and runs it until OK; returns true.
    bool run();
    /// Does nothing; kept for applications that call it.
    void internationalize();

public Q_SLOTS:
    /// Ends run() with both dates stored, unless an editor that has the focus or that the user
    /// typed in holds text the formatter cannot read.
    void OK_Button();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void initInterface();

    std::unique_ptr<class BXDateRangePanelPrivate> const d;
};
