// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QColor>
#include <QRgbaFloat32>
#include <QString>

/**
 * \file
 * Colours written as text: four comma-separated components, red, green, blue and alpha, each
 * from 0 to 1 with five decimals, for example "1.00000,0.00000,0.00000,0.50000".
 *
 * The text holds single-precision components. QRgbaFloat32 holds them exactly, so code that
 * stores colours (archives, settings) reads and writes them with rgbaFromCalibratedRGBString()
 * and asCalibratedRGBString(QRgbaFloat32); the QColor forms are for drawing, since QColor
 * keeps 16 bits per component ("1,0,0,0.5" gives an alpha of 0.5000076 there).
 *
 * \code
 * const QRgbaFloat32 stored = Brixel::rgbaFromCalibratedRGBString(settings.value(key).toString());
 * settings.setValue(key, Brixel::asCalibratedRGBString(stored));     // the same text back
 * \endcode
 */

namespace Brixel {

/**
 * The components that \a string describes. With four or more comma-separated parts, red, green,
 * blue and alpha are the leading numbers of the first four parts, read as single-precision
 * values (leading blanks skipped, the number ends at the first character that cannot continue
 * it, a part without a number reads 0); further parts are ignored. With fewer parts (an empty
 * or null string included) the colour is opaque black.
 *
 * Components are clamped to [0, 1]. Only decimal numbers are read, so "nan" or "inf" reads 0
 * and a number too large for a float, such as 1e99, reads as 1.
 *
 * \code
 * Brixel::rgbaFromCalibratedRGBString(QStringLiteral("1,0,0,0.5"));   // red, alpha exactly 0.5f
 * Brixel::rgbaFromCalibratedRGBString(QStringLiteral("1,0,0"));       // opaque black
 * \endcode
 */
BRIXEL_EXPORT QRgbaFloat32 rgbaFromCalibratedRGBString(const QString &string);

/// The colour that \a string describes, read as rgbaFromCalibratedRGBString() reads it and
/// then held in QColor's 16 bits per component.
BRIXEL_EXPORT QColor colorFromCalibratedRGBString(const QString &string);

/**
 * \a rgba as "%.5f,%.5f,%.5f,%.5f" of its red, green, blue and alpha, each the exact
 * single-precision value rounded to five places, ties to even as C's printf rounds them
 * (0.015625 is written "0.01562"). Values are written as they are, without clamping.
 */
BRIXEL_EXPORT QString asCalibratedRGBString(QRgbaFloat32 rgba);

/**
 * \a color as "%.5f,%.5f,%.5f,%.5f" of its red, green, blue and alpha, after converting it to
 * RGB if it is held in another colour model. An invalid colour is written as opaque black.
 *
 * QColor keeps 16 bits per component, which is finer than the text's last decimal but does not
 * hold every five-decimal value exactly. Each component is therefore written as the shortest
 * decimal (at most five places) that QColor stores as the same 16-bit value. So writing a
 * colour and reading it back gives the same colour, and reading text and writing it back gives
 * the same text whenever its components have at most four decimals ("0.5" comes back as
 * "0.50000", not as the stored 0.50001).
 */
BRIXEL_EXPORT QString asCalibratedRGBString(const QColor &color);

} // namespace Brixel
