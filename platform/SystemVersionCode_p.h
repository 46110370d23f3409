// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QStringView>

namespace BrixelPrivate {
/// Reads a code written in hexadecimal, with or without a "0x" prefix and surrounding blanks.
/// Returns 0 for text that is empty, not hexadecimal or too large for 32 bits.
BRIXEL_AUTOTEST_EXPORT quint32 parseSystemVersionCode(QStringView text);
}
