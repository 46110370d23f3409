// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NumberText_p.h"

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

} // namespace

double BrixelPrivate::leadingNumber(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    // The C-locale conversion gives an infinity on overflow and 0 on underflow.
    return text.first(decimalNumberLength(text)).toDouble();
}
