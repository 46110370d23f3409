// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <climits>

/**
 * \file
 * The number conversion every float-to-integer step of the library goes through, so that
 * values from outside (NaN, infinities, huge sizes) give a defined result.
 */

namespace Brixel {

/**
 * \a value truncated toward zero to a 32-bit signed integer. NaN, the infinities and every
 * value whose truncation lies outside -2147483648..2147483647 give -2147483648, the result a
 * processor's truncating conversion produces; a plain cast would be undefined for them.
 */
inline int truncatedToInt32(double value)
{
    // Both bounds are exact doubles; NaN fails both comparisons.
    if (value > -2147483649.0 && value < 2147483648.0)
        return static_cast<int>(value);
    return INT_MIN;
}

} // namespace Brixel
