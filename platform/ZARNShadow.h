// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNSize.h"

#include <QColor>
#include <QMetaType>

/**
 * A text shadow: how far it is moved, how soft it is and its colour. It is a plain value; the
 * text drawing code paints it under the glyphs.
 *
 * The offset is in the coordinates of the library's drawing rules, where y grows upward, so {0, -1} puts the
 * shadow one point below the text.
 *
 * \code
 * const ZARNShadow engraving{{0.0f, -1.0f}, 1.0f, QColor::fromRgbF(0, 0, 0, 0.8f)};
 * attributed.addAttribute(ZARNShadowAttributeName, QVariant::fromValue(engraving), {0, attributed.length()});
 * \endcode
 */
struct ZARNShadow
{
    ZARNSize offset;
    float blurRadius = 0.0f;
    QColor color = QColor(Qt::black);

    friend bool operator==(const ZARNShadow &, const ZARNShadow &) = default;
};

Q_DECLARE_METATYPE(ZARNShadow)
