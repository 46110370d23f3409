// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>

/**
 * \file
 * Small facts about the running system: a fresh unique string, the machine's primary network
 * hardware address and the process identifier. They name temporary files and folders
 * (ZARNTempFolderName()) and identify the machine to licensing and logging code.
 *
 * \code
 * const QString folder = QDir::temp().filePath(ZARNTempFolderName());
 * qInfo() << "machine" << ZARNMACAddressString() << "process" << ZARNProcessIDString();
 * \endcode
 */

namespace Brixel {

/// A newly generated UUID as upper-case text without braces, such as
/// "6BA7B810-9DAD-11D1-80B4-00C04FD430C8". Every call gives a different one.
BRIXEL_EXPORT QString ZARNUniqueString();

/**
 * The hardware address of the machine's primary network interface as six upper-case
 * hexadecimal numbers without zero padding: the bytes 00 0A 95 9D 68 16 give "0A959D6816".
 * The missing padding is intended; names built from the string depend on it.
 *
 * The primary interface is the one that carries the default route when it has a hardware
 * address, else the first interface that is not the loopback one and has one. A usable hardware
 * address has at least six bytes, not all zero; only its first six count. When there is none,
 * the result is the machine's host name. The interfaces come from ZARNNetworkInterfaces::current().
 *
 * When the look-up fails, a diagnostic line goes to standard output:
 * - the interface list cannot be read: "IOServiceGetMatchingServices returned 0x%08x" with the
 *   back end's error code;
 * - there are interfaces besides the loopback one but none has a usable hardware address:
 *   "IORegistryEntryGetParentEntry returned 0x%08x" with ENODEV (0x00000013).
 * A machine with the loopback interface alone gives the host name without a line.
 */
BRIXEL_EXPORT QString ZARNMACAddressString();

/// The identifier of the current process in decimal, such as "4242". It needs no
/// QCoreApplication. (A process always has one on the systems Qt runs on, so the "0" that
/// stands for an unknown identifier does not occur.)
BRIXEL_EXPORT QString ZARNProcessIDString();

} // namespace Brixel
