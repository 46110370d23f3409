// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QStringView>

namespace BrixelPrivate {

/// Where the first month ("bBm"), day ("de") and year ("yY") letters stand in a date format,
/// anywhere in it; a missing kind stands at the format's length.
struct DateFieldPositions
{
    qsizetype month = 0;
    qsizetype day = 0;
    qsizetype year = 0;
};

BRIXEL_AUTOTEST_EXPORT DateFieldPositions dateFieldPositions(QStringView format);

} // namespace BrixelPrivate
