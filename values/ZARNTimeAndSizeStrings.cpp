// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTimeAndSizeStrings.h"

#include "NumberText_p.h"

#include "../platform/ZARNLocalizedString.h"
#include "../platform/ZARNUserDefaults.h"

#include <cmath>

namespace {

struct UnitWords
{
    const char *singular;
    const char *plural;
};

constexpr UnitWords dayWords{QT_TRANSLATE_NOOP("Brixel", "day"), QT_TRANSLATE_NOOP("Brixel", "days")};
constexpr UnitWords hourWords{QT_TRANSLATE_NOOP("Brixel", "hour"), QT_TRANSLATE_NOOP("Brixel", "hours")};
constexpr UnitWords minuteWords{QT_TRANSLATE_NOOP("Brixel", "minute"), QT_TRANSLATE_NOOP("Brixel", "minutes")};
constexpr UnitWords secondWords{QT_TRANSLATE_NOOP("Brixel", "second"), QT_TRANSLATE_NOOP("Brixel", "seconds")};

// Appends "count word", after ", " when the piece follows another. Counts of 0 or less
// add nothing.
void appendCount(QString &text, bool follows, int count, const UnitWords &words)
{
    if (count <= 0)
        return;
    if (follows)
        text += QStringLiteral(", ");
    text += QString::number(count);
    text += u' ';
    text += Brixel::ZARNLocalizedString(count == 1 ? words.singular : words.plural);
}

QString withUnit(double value, QStringView unit)
{
    QString text = BrixelPrivate::fixedText(value, 1);
    text += unit;
    return text;
}

} // namespace

QString Brixel::ZARNLongStringForTimeInterval(double interval)
{
    const int whole = Brixel::truncatedToInt32(interval);
    const int days = whole / 86400;
    const int hours = (whole / 3600) % 24;
    const int minutes = (whole / 60) % 60;
    const int seconds = Brixel::truncatedToInt32(std::fmod(interval, 60.0));

    // Whether a piece follows another is decided from the counts, not from what was appended.
    QString text;
    appendCount(text, false, days, dayWords);
    appendCount(text, days >= 1, hours, hourWords);
    appendCount(text, !(days < 1 && hours < 1), minutes, minuteWords);
    if (days == 0 && hours == 0 && minutes == 0)
        appendCount(text, false, seconds, secondWords);
    else if (days == 0 && (hours > 0 || minutes > 0))
        appendCount(text, true, seconds, secondWords);

    if (text.isEmpty())
        text = QStringLiteral("--:--:--:--");
    return text;
}

QString Brixel::TimeIntervalDescription(double interval)
{
    const int whole = Brixel::truncatedToInt32(interval);
    const double seconds = std::fmod(interval, 60.0);

    // Padded by the seconds' own value, so NaN ("not below ten") stays unpadded.
    QString secondsText = QString::number(Brixel::truncatedToInt32(seconds));
    if (seconds < 10)
        secondsText.prepend(u'0');
    // The seconds text is whole, so this finds nothing today; it keeps the user's decimal
    // separator in charge should a fraction ever be shown.
    const QString decimalSeparator = ZARNUserDefaults::stringForKey(QStringLiteral("NSDecimalSeparator"));
    if (!decimalSeparator.isEmpty())
        secondsText.replace(u'.', decimalSeparator);

    return BrixelPrivate::zeroPaddedBelowTen(whole / 3600) + u':' + BrixelPrivate::zeroPaddedBelowTen((whole / 60) % 60) + u':'
        + secondsText;
}

QString Brixel::StringForFileSize(quint64 size)
{
    // Through a float first, deliberately: the figures shown for large sizes depend on it.
    const double approximate = static_cast<float>(size);
    if (size > 1073741823)
        return withUnit(approximate * (1.0 / 1073741824.0), u"GB");
    if (size > 1048575)
        return withUnit(approximate * (1.0 / 1048576.0), u"MB");
    if (size > 1023)
        return withUnit(approximate * (1.0 / 1024.0), u"KB");
    return QString::number(size) + QStringLiteral(" bytes");
}

int Brixel::ZARNRoundToNearestIncrement(int value, int increment)
{
    if (increment == 0)
        return value;
    // Every value is a multiple of -1, and INT_MIN % -1 traps, so that remainder is given.
    const int remainder = increment == -1 ? 0 : value % increment;
    const int lower = value - remainder;
    if (remainder < increment / 2)
        return lower;
    // Wraps past the int range as 32-bit arithmetic does, instead of overflowing.
    return static_cast<int>(static_cast<quint32>(lower) + static_cast<quint32>(increment));
}
