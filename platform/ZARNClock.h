// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <memory>

/**
 * Where time-driven code in the library reads "now".
 *
 * The library never asks the machine's clock directly; it asks ZARNClock::current(), which
 * is the system clock unless an application or a test installs another one:
 *
 * \code
 * class FixedClock : public ZARNClock {
 * public:
 *     double now() const override { return 1715783420.0; }   // 2024-05-15 14:30:20 UTC
 * };
 * ZARNClock::setCurrent(std::make_unique<FixedClock>());
 * ...
 * ZARNClock::setCurrent(nullptr);                            // back to the system clock
 * \endcode
 */
class BRIXEL_EXPORT ZARNClock
{
public:
    virtual ~ZARNClock();

    /// Seconds since 1970-01-01 00:00:00 UTC, with fractions.
    virtual double now() const = 0;

    /// The clock in use: the installed one, else the system clock.
    static const ZARNClock &current();
    /// Installs \a clock as the library's clock; nullptr restores the system clock.
    static void setCurrent(std::unique_ptr<ZARNClock> clock);
    /// The machine's clock, whatever is installed.
    static const ZARNClock &system();
};
