// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSAttributedString_Category.h"

#include <Brixel/ZARNAttributedString.h>

QVariant attribute(const ZARNAttributedString &string, const QString &name)
{
    return string.isEmpty() ? QVariant() : string.attribute(name, 0);
}
