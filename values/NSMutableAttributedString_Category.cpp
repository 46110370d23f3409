// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSMutableAttributedString_Category.h"

#include "../platform/ZARNAttributedString.h"

void Brixel::replaceAttribute(ZARNAttributedString &string, const QString &name, const QVariant &value)
{
    qsizetype index = 0;
    while (index < string.length()) {
        ZARNRange run;
        QVariantMap attributes = string.attributesAtIndex(index, &run);
        // A run without attributes is passed over whole: none of its characters has any.
        if (!attributes.isEmpty()) {
            attributes.insert(name, value);
            string.setAttributes(attributes, run);
        }
        index = run.end();
    }
}
