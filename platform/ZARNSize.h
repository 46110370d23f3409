// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QSizeF>

class QDebug;

/**
 * A size with 32-bit float width and height (see ZARNPoint for why float).
 */
struct ZARNSize
{
    float width = 0.0f;
    float height = 0.0f;

    /// Narrows a Qt size to float fields.
    static constexpr ZARNSize fromQSizeF(QSizeF size) { return {float(size.width()), float(size.height())}; }
    constexpr QSizeF toQSizeF() const { return {width, height}; }

    friend constexpr bool operator==(ZARNSize, ZARNSize) = default;
};

BRIXEL_EXPORT QDebug operator<<(QDebug debug, ZARNSize size);
