// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <memory>

/**
 * Where the library asks for the user's attention: a window's taskbar entry that flashes or
 * a dock icon that bounces.
 *
 * The library never calls the window system directly; it asks ZARNUserAttention::current(),
 * which is the system's unless an application or a test installs another one:
 *
 * \code
 * class Recorder : public ZARNUserAttention { ... };
 * ZARNUserAttention::setCurrent(std::make_unique<Recorder>());
 * \endcode
 */
class BRIXEL_EXPORT ZARNUserAttention
{
public:
    /// How insistent a request is.
    enum class RequestType {
        /// Lasts until the application's window becomes active.
        Critical = 0,
        /// A short signal that ends by itself.
        Informational = 10,
    };

    virtual ~ZARNUserAttention();

    /// Asks for attention and returns the request's identifier, greater than 0.
    virtual int request(RequestType type) = 0;
    /// Ends the request \a identifier early; an identifier that is not running does nothing.
    virtual void cancel(int identifier) = 0;

    /// The one in use: the installed one, else the system's.
    static ZARNUserAttention &current();
    /// Installs \a attention; nullptr restores the system's.
    static void setCurrent(std::unique_ptr<ZARNUserAttention> attention);
    /**
     * The window system's, through QWindow::alert() on every visible top-level window that is
     * not active: a critical request lasts until a window is activated, an informational one
     * one second. Qt cannot withdraw an alert, so cancel() replaces it by one of a millisecond,
     * which ends it at once. Identifiers count up from 1.
     */
    static ZARNUserAttention &system();
};
