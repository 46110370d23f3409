// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.
// Numbers as text, the way the value helpers write and read them.

#include "../platform/BrixelNumbers.h"

#include <QString>

#include <charconv>

namespace BrixelPrivate {

/**
 * \a value with \a decimals digits after the point, rounded exactly as C's "%.*f" rounds
 * (ties of the exact binary value go to even: 0.0625 gives "0.062"); "nan", "inf", "-inf"
 * for the special values. QString::number() rounds such ties up, so it is not used here.
 */
inline QString fixedText(double value, int decimals)
{
    // Large enough for the biggest double in fixed notation (309 digits) plus sign, point
    // and the decimals the library asks for.
    char buffer[400];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    return QString::fromLatin1(buffer, result.ptr - buffer);
}

/**
 * The decimal number at the start of \a text, read as C's strtod reads one: blanks first,
 * an optional sign, digits with an optional point and exponent, the rest ignored. Text
 * without a number reads as 0; a number too large gives an infinity and one too small 0.
 * Hexadecimal numbers, "inf" and "nan" are not numbers here.
 */
double leadingNumber(QStringView text);

/// \a value as "%i", with a "0" in front when it is below ten (negative values included).
inline QString zeroPaddedBelowTen(int value)
{
    QString text = QString::number(value);
    if (value < 10)
        text.prepend(u'0');
    return text;
}

} // namespace BrixelPrivate
