// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMetaType>
#include <QtGlobal>

/**
 * The index that stands for "no such index": the largest signed 32-bit value.
 *
 * Searches that report it instead of -1 hand back a positive number, so a caller that only
 * rejects negative indexes goes on to use it, and the container's range check then throws
 * std::out_of_range. Several of the library's look-ups keep that behaviour on purpose.
 */
inline constexpr qsizetype ZARNNotFound = 2147483647;

/**
 * A stretch of characters or items: \a location is the first index, \a length the count.
 *
 * \code
 * const ZARNRange word{6, 5};          // "world" in "hello world"
 * Q_ASSERT(word.end() == 11 && word.contains(10));
 * \endcode
 */
struct ZARNRange
{
    qsizetype location = 0;
    qsizetype length = 0;

    /// The index just past the last one.
    constexpr qsizetype end() const { return location + length; }
    /// True when \a index lies in [location, end()).
    constexpr bool contains(qsizetype index) const { return index >= location && index - location < length; }

    friend constexpr bool operator==(ZARNRange, ZARNRange) = default;
};

Q_DECLARE_METATYPE(ZARNRange)
