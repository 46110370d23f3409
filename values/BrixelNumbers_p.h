// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Number conversions shared by the value helpers. Not installed.

#include <QString>

#include <charconv>
#include <climits>

namespace brixel {

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

} // namespace brixel
