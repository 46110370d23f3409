// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QByteArrayView>
#include <QString>

namespace BrixelPrivate {
/// The interface of the IPv4 default route in a table in the format of /proc/net/route: among
/// the lines that are up (flag bit 1) with destination and mask 00000000, the one with the
/// lowest metric, the first of equals. Empty when there is none or the text is not such a table.
BRIXEL_AUTOTEST_EXPORT QString defaultRouteInterfaceName(QByteArrayView routeTable);
}
