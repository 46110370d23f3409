// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSColorAdditions.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

bool isDigit(QStringView text, qsizetype index)
{
    return index < text.size() && text[index] >= u'0' && text[index] <= u'9';
}

bool isOneOf(QStringView text, qsizetype index, QStringView characters)
{
    return index < text.size() && characters.contains(text[index]);
}

qsizetype skipDigits(QStringView text, qsizetype index)
{
    while (isDigit(text, index))
        ++index;
    return index;
}

// The length of the decimal number at the start of text: sign, digits, fraction, exponent.
// 0 when there is no digit before the exponent.
qsizetype decimalNumberLength(QStringView text)
{
    qsizetype end = isOneOf(text, 0, u"+-") ? 1 : 0;
    const qsizetype integerEnd = skipDigits(text, end);
    bool hasDigits = integerEnd > end;
    end = integerEnd;
    if (isOneOf(text, end, u".")) {
        const qsizetype fractionEnd = skipDigits(text, end + 1);
        hasDigits = hasDigits || fractionEnd > end + 1;
        end = fractionEnd;
    }
    if (!hasDigits)
        return 0;
    if (isOneOf(text, end, u"eE")) {
        const qsizetype exponentDigits = isOneOf(text, end + 1, u"+-") ? end + 2 : end + 1;
        if (isDigit(text, exponentDigits))
            end = skipDigits(text, exponentDigits);
    }
    return end;
}

// The number at the start of text after blanks, as a colour component in [0, 1].
float leadingComponent(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    // The C-locale conversion gives an infinity on overflow and 0 on underflow, both clamped.
    const double value = text.first(decimalNumberLength(text)).toDouble();
    return float(std::clamp(value, 0.0, 1.0));
}

quint16 storedComponent(float component)
{
    return QColor::fromRgbF(component, 0.0f, 0.0f).rgba64().red();
}

// The shortest decimal, up to five places, that QColor stores as the 16-bit value stored.
float shortestComponent(quint16 stored)
{
    const double exact = stored / 65535.0;
    for (double scale = 1.0; scale < 1e5; scale *= 10.0) {
        const float candidate = float(std::round(exact * scale) / scale);
        if (storedComponent(candidate) == stored)
            return candidate;
    }
    // Five places always identify the 16-bit value; printing rounds to them.
    return float(exact);
}

} // namespace

QColor colorFromCalibratedRGBString(const QString &string)
{
    const QList<QStringView> parts = QStringView(string).split(u',');
    if (parts.size() <= 3)
        return QColor::fromRgbF(0.0f, 0.0f, 0.0f, 1.0f);
    return QColor::fromRgbF(leadingComponent(parts.at(0)), leadingComponent(parts.at(1)),
                            leadingComponent(parts.at(2)), leadingComponent(parts.at(3)));
}

QString asCalibratedRGBString(const QColor &color)
{
    const QRgba64 stored = color.toRgb().rgba64();
    return QString::asprintf("%.5f,%.5f,%.5f,%.5f", double(shortestComponent(stored.red())),
                             double(shortestComponent(stored.green())), double(shortestComponent(stored.blue())),
                             double(shortestComponent(stored.alpha())));
}
