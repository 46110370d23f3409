// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ActivityFollower_p.h"

#include "../platform/ZARNSystemVersion.h"

#include <QDialog>
#include <QGuiApplication>

namespace BrixelPrivate {

namespace {

// Exactly a plain QWidget or QDialog: the windows whose own activation a control follows.
bool isPlainWindow(const QWidget *window)
{
    const QMetaObject *type = window->metaObject();
    return type == &QWidget::staticMetaObject || type == &QDialog::staticMetaObject;
}

} // namespace

ActivityFollower::ActivityFollower(QWidget *control, std::function<void()> activate, std::function<void()> deactivate)
    : m_control(control)
    , m_activate(std::move(activate))
    , m_deactivate(std::move(deactivate))
{
    m_control->installEventFilter(this);
}

void ActivityFollower::follow()
{
    if (Brixel::ZARNSystemVersion() <= 0x101F)
        return;
    QWidget *window = m_control->window();
    if (window != m_control && isPlainWindow(window)) {
        if (!m_windows.contains(window)) {
            m_windows.insert(window);
            window->installEventFilter(this);
            connect(window, &QObject::destroyed, this, [this, window] { m_windows.remove(window); });
        }
        return;
    }
    if (m_followsApplication)
        return;
    m_followsApplication = true;
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) { state == Qt::ApplicationActive ? m_activate() : m_deactivate(); });
}

bool ActivityFollower::eventFilter(QObject *watched, QEvent *event)
{
    // The control gets a ParentChange when it moves itself, and a Show in its new window when
    // one of its ancestors moved.
    if (watched == m_control) {
        if (event->type() == QEvent::ParentChange || event->type() == QEvent::Show)
            follow();
    } else if (m_windows.contains(watched)) {
        if (event->type() == QEvent::WindowActivate)
            m_activate();
        else if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::WindowBlocked)
            m_deactivate();
    }
    return false;
}

} // namespace BrixelPrivate
