// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QObject>
#include <QSet>

#include <functional>

class QWidget;

namespace BrixelPrivate {

/**
 * Tells a chiseled control when to show its active and its inactive look. follow() looks at
 * the control's window at that moment; it runs again when the control is re-parented or shown,
 * so moving the control or any of its ancestors into another window is noticed: a window that is exactly a QWidget or a QDialog is
 * followed itself (activation, deactivation, and a modal dialog blocking it); any other
 * window, or none, means following the application's state. Earlier choices stay in force, so a
 * control moved between windows follows all of them, which does no harm since activating or
 * deactivating twice changes nothing. With a system version code of 0x101F or below follow()
 * does nothing.
 */
class BRIXEL_AUTOTEST_EXPORT ActivityFollower : public QObject
{
public:
    /// Follows on behalf of \a control, which must outlive the follower (it keeps it as a
    /// member, so no signal reaches a control that is being destroyed).
    ActivityFollower(QWidget *control, std::function<void()> activate, std::function<void()> deactivate);

    void follow();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_control;
    std::function<void()> m_activate;
    std::function<void()> m_deactivate;
    QSet<const QObject *> m_windows;
    bool m_followsApplication = false;
};

} // namespace BrixelPrivate
