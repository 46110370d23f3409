// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include "../platform/ZARNUserAttention.h"

#include <QApplication>

#include <memory>

/// The name of the notice ZARNApplication::mouseDown() stands for.
inline constexpr QLatin1StringView ZARNApplicationMouseDownNotification("ZARNApplicationMouseDownNotification");
/// The name of the notice ZARNApplication::userInput() stands for.
inline constexpr QLatin1StringView ZARNApplicationUserInputNotification("ZARNApplicationUserInputNotification");

/**
 * The application object of programs built on the library. It announces user input before
 * any widget sees it, records when the window system last delivered an event (to measure idle
 * time), commits a pending edit before quitting, and can keep attention requests short.
 *
 * \code
 * int main(int argc, char *argv[])
 * {
 *     ZARNApplication application(argc, argv);
 *     QObject::connect(&application, &ZARNApplication::userInput, &idleTimer, &IdleTimer::restart);
 *     ...
 *     return application.exec();
 * }
 * \endcode
 *
 * Only events that arrive from the window system count, when they reach their window and
 * before the window hands them to a widget; a key press that a shortcut takes counts when the
 * shortcut gets it:
 *
 * | event                                               | mouseDown() | userInput() |
 * |-----------------------------------------------------|-------------|-------------|
 * | left button press                                   | first       | then        |
 * | other button press, any release, move with a button | -           | yes         |
 * | key press (auto-repeats and shortcuts' keys too)    | -           | yes         |
 * | key release, move without buttons, wheel, others    | -           | -           |
 *
 * Both signals are emitted synchronously, before the event is delivered.
 */
class BRIXEL_EXPORT ZARNApplication : public QApplication
{
    Q_OBJECT
    Q_PROPERTY(bool shortCircuitRequestUserAttention READ shortCircuitRequestUserAttention WRITE
                   setShortCircuitRequestUserAttention)
public:
    ZARNApplication(int &argc, char **argv);
    ~ZARNApplication() override;

    /// When the window system last delivered an event of any kind, in seconds since 1970 from
    /// ZARNClock::current(); 0 before the first.
    double lastEventTimestamp() const;

    bool shortCircuitRequestUserAttention() const;
    /// When set, requests are cut short: see requestUserAttention(). Off at first.
    void setShortCircuitRequestUserAttention(bool flag);

    /**
     * Asks for the user's attention through ZARNUserAttention::current() and returns the
     * request's identifier. With shortCircuitRequestUserAttention() set, a critical request
     * is not made at all and 0 is returned, and any other request is made and cancelled at
     * once, giving a single short signal; its identifier is returned.
     */
    int requestUserAttention(ZARNUserAttention::RequestType type);

    bool notify(QObject *receiver, QEvent *event) override;

public Q_SLOTS:
    /// Lets the active window take the keyboard focus itself, which ends the editing in
    /// progress so an open editor commits its value, then quits the event loop.
    void terminate();

Q_SIGNALS:
    /// A left mouse button was pressed.
    void mouseDown();
    /// The user pressed or released a mouse button, dragged, or pressed a key.
    void userInput();

private:
    std::unique_ptr<class ZARNApplicationPrivate> const d;
};
