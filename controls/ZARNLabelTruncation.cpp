// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNLabelTruncation.h"

#include "../drawing/ZARNTextTruncation.h"
#include "../platform/ZARNAttributedString.h"

#include <QLabel>

void Brixel::TruncateStringInCell(QLabel *label, float width)
{
    if (!label)
        return;
    const QVariantMap attributes{{ZARNFontAttributeName, label->font()},
                                 {ZARNForegroundColorAttributeName, label->palette().color(label->foregroundRole())}};
    QString text = label->text();
    // The label shows "..." even when truncation throws, so it is set before rethrowing.
    try {
        Brixel::TruncateStringInCell(&text, attributes, width);
    } catch (const std::out_of_range &) {
        label->setText(text);
        throw;
    }
    if (text != label->text())
        label->setText(text);
}
