// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSAttributedString_Category.h"

#include "../platform/ZARNAttributedString.h"

QVariant Brixel::attribute(const ZARNAttributedString &string, const QString &name)
{
    return string.isEmpty() ? QVariant() : string.attribute(name, 0);
}
