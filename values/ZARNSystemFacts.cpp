// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSystemFacts.h"

#include "../platform/ZARNNetworkInterfaces.h"

#include <QCoreApplication>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace {

using Interface = ZARNNetworkInterfaces::Interface;

constexpr qsizetype hardwareAddressLength = 6;

bool hasUsableHardwareAddress(const Interface &interface)
{
    const QByteArray &address = interface.hardwareAddress;
    return address.size() >= hardwareAddressLength
        && std::any_of(address.cbegin(), address.cbegin() + hardwareAddressLength,
                       [](char byte) { return byte != 0; });
}

const Interface *primaryInterface(const QList<Interface> &interfaces, const QString &defaultRoute)
{
    const auto firstWhere = [&interfaces](auto predicate) -> const Interface * {
        const auto found = std::find_if(interfaces.cbegin(), interfaces.cend(), predicate);
        return found != interfaces.cend() ? &*found : nullptr;
    };
    const Interface *routed = firstWhere([&defaultRoute](const Interface &interface) {
        return !defaultRoute.isEmpty() && interface.name == defaultRoute && hasUsableHardwareAddress(interface);
    });
    return routed ? routed : firstWhere([](const Interface &interface) {
        return !interface.loopback && hasUsableHardwareAddress(interface);
    });
}

// Each byte in upper-case hexadecimal without zero padding.
QString unpaddedHex(QByteArrayView bytes)
{
    QString text;
    for (const char byte : bytes)
        text += QString::number(uchar(byte), 16).toUpper();
    return text;
}

void printDiagnostic(const char *call, quint32 code)
{
    std::printf("%s returned 0x%08x\n", call, unsigned(code));
    std::fflush(stdout);
}

} // namespace

QString Brixel::ZARNUniqueString()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString Brixel::ZARNMACAddressString()
{
    const ZARNNetworkInterfaces &backEnd = ZARNNetworkInterfaces::current();
    const ZARNNetworkInterfaces::Listing listing = backEnd.interfaces();
    if (listing.error != 0) {
        printDiagnostic("IOServiceGetMatchingServices", listing.error);
        return backEnd.hostName();
    }
    if (const Interface *primary = primaryInterface(listing.interfaces, backEnd.defaultRouteInterface()))
        return unpaddedHex(QByteArrayView(primary->hardwareAddress).first(hardwareAddressLength));

    const bool hasCandidates = std::any_of(listing.interfaces.cbegin(), listing.interfaces.cend(),
                                           [](const Interface &interface) { return !interface.loopback; });
    if (hasCandidates)
        printDiagnostic("IORegistryEntryGetParentEntry", ENODEV);
    return backEnd.hostName();
}

QString Brixel::ZARNProcessIDString()
{
    return QString::number(QCoreApplication::applicationPid());
}
