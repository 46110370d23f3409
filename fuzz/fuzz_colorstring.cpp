// SPDX-License-Identifier: LGPL-2.1-or-later
// Colours read from arbitrary text and written back: components stay in range, the written
// text has the fixed shape, and writing and reading again changes nothing.

#include <Brixel/ZARNNSColorAdditions.h>

#include <QColor>
#include <QRegularExpression>
#include <QString>

#include <cstdlib>
#include <cstring>

namespace {

void check(bool condition)
{
    if (!condition)
        std::abort();
}

void checkRoundTrip(const QColor &color)
{
    static const QRegularExpression shape(QStringLiteral("^([01]\\.\\d{5},){3}[01]\\.\\d{5}$"));
    const QString text = Brixel::asCalibratedRGBString(color);
    check(shape.match(text).hasMatch());
    const QColor back = Brixel::colorFromCalibratedRGBString(text);
    check(back.rgba64() == color.toRgb().rgba64());
    check(Brixel::asCalibratedRGBString(back) == text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QColor color = Brixel::colorFromCalibratedRGBString(QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size)));
    check(color.isValid() && color == color.toRgb());   // an RGB colour
    checkRoundTrip(color);

    // Any stored colour, not only those that text produces, comes back unchanged.
    if (size >= 8) {
        quint16 components[4];
        std::memcpy(components, data, sizeof components);
        checkRoundTrip(QColor::fromRgba64(components[0], components[1], components[2], components[3]));
    }
    return 0;
}
