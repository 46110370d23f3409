// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include <memory>

/**
 * Where the library reads the machine's network interfaces, its default route and its host
 * name (used for the hardware address string in ZARNSystemFacts.h).
 *
 * The real back end lists interfaces with QNetworkInterface, finds the interface that carries
 * the IPv4 default route in /proc/net/route, and takes the host name from
 * QSysInfo::machineHostName(). Tests install a double:
 *
 * \code
 * class FakeInterfaces : public ZARNNetworkInterfaces {
 * public:
 *     Listing interfaces() const override { return {{{u"eth0"_s, QByteArray::fromHex("000A959D6816")}}}; }
 *     QString defaultRouteInterface() const override { return u"eth0"_s; }
 *     QString hostName() const override { return u"testhost"_s; }
 * };
 * ZARNNetworkInterfaces::setCurrent(std::make_unique<FakeInterfaces>());
 * ...
 * ZARNNetworkInterfaces::setCurrent(nullptr);          // back to the machine
 * \endcode
 */
class BRIXEL_EXPORT ZARNNetworkInterfaces
{
public:
    struct Interface
    {
        QString name;
        /// The raw hardware address bytes; empty when the interface has none.
        QByteArray hardwareAddress;
        bool loopback = false;
    };

    struct Listing
    {
        /// The interfaces in the order the system lists them.
        QList<Interface> interfaces;
        /// 0 when the list could be read, else a non-zero error code (then interfaces is empty).
        quint32 error = 0;
    };

    virtual ~ZARNNetworkInterfaces();

    /// The machine's interfaces. The real back end reports EIO when the system lists no
    /// interface at all, since a working Linux system always has at least the loopback one.
    virtual Listing interfaces() const = 0;
    /// The name of the interface that carries the default route; empty when there is none or
    /// it cannot be read.
    virtual QString defaultRouteInterface() const = 0;
    /// The machine's host name.
    virtual QString hostName() const = 0;

    /// The back end in use: the installed one, else the machine's.
    static const ZARNNetworkInterfaces &current();
    /// Installs \a interfaces as the library's back end; nullptr restores the machine's.
    static void setCurrent(std::unique_ptr<ZARNNetworkInterfaces> interfaces);
    /// The machine's back end, whatever is installed.
    static const ZARNNetworkInterfaces &system();
};
