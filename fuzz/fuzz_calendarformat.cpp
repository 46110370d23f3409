// SPDX-License-Identifier: LGPL-2.1-or-later
// Parses arbitrary text with an arbitrary %-format and writes dates back with it. The input is
// one byte choosing the time zone and the text encoding, six 32-bit amounts for
// dateByAddingYears(), then the text and the format, separated by the first zero byte.
// Besides crashes and undefined behaviour, it checks that every date has fields in range and
// that a parsed date survives a trip through the numeric format.

#include <Brixel/ZARNCalendarDate.h>

#include <QString>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

void check(bool condition)
{
    if (!condition)
        std::abort();
}

void checkFields(const ZARNCalendarDate &date)
{
    check(date.yearOfCommonEra() >= 1 && date.yearOfCommonEra() <= 9999);
    check(date.monthOfYear() >= 1 && date.monthOfYear() <= 12);
    check(date.dayOfMonth() >= 1 && date.dayOfMonth() <= 31);
    check(date.dayOfWeek() >= 0 && date.dayOfWeek() <= 6);
    check(date.hourOfDay() >= 0 && date.hourOfDay() <= 23);
    check(date.minuteOfHour() >= 0 && date.minuteOfHour() <= 59);
    check(date.secondOfMinute() >= 0 && date.secondOfMinute() <= 59);
}

// UTF-8, or raw UTF-16 code units (lone surrogates included).
QString decode(const uint8_t *data, size_t size, bool utf16)
{
    if (!utf16)
        return QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    QString text(qsizetype(size / 2), Qt::Uninitialized);
    std::memcpy(text.data(), data, size / 2 * 2);
    return text;
}

QTimeZone zoneFor(uint8_t choice)
{
    switch (choice % 4) {
    case 0: return QTimeZone::utc();
    case 1: return QTimeZone((5 * 60 + 45) * 60);
    case 2: return QTimeZone(-14 * 3600);
    default: {
        const QTimeZone berlin("Europe/Berlin");
        return berlin.isValid() ? berlin : QTimeZone::utc();
    }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr size_t Header = 1 + 6 * 4;
    if (size < Header)
        return 0;
    static const QTimeZone zones[] = {zoneFor(0), zoneFor(1), zoneFor(2), zoneFor(3)};
    ZARNCalendarDate::setDefaultTimeZone(zones[data[0] % 4]);
    const bool utf16 = data[0] & 0x80;
    std::array<int32_t, 6> amounts;
    std::memcpy(amounts.data(), data + 1, sizeof amounts);

    const uint8_t *rest = data + Header;
    const size_t restSize = size - Header;
    const auto *separator = static_cast<const uint8_t *>(std::memchr(rest, 0, restSize));
    const size_t textSize = separator ? size_t(separator - rest) : restSize;
    const QString text = decode(rest, textSize, utf16);
    const QString format = separator ? decode(separator + 1, restSize - textSize - 1, utf16) : QString();

    const std::optional<ZARNCalendarDate> parsed = ZARNCalendarDate::dateWithString(text, format);
    const ZARNCalendarDate date = parsed ? *parsed : ZARNCalendarDate::dateWithYear(2024, 5, 15, 14, 30, 20);
    checkFields(date);
    if (parsed) {
        const QString numeric = QStringLiteral("%Y-%m-%d %H:%M:%S");
        const std::optional<ZARNCalendarDate> again =
            ZARNCalendarDate::dateWithString(parsed->descriptionWithCalendarFormat(numeric), numeric);
        check(again && *again == *parsed);
    }
    const QString written = date.descriptionWithCalendarFormat(format);
    ZARNCalendarDate::dateWithString(written, format);

    const ZARNCalendarDate moved =
        date.dateByAddingYears(amounts[0], amounts[1], amounts[2], amounts[3], amounts[4], amounts[5]);
    checkFields(moved);
    check(moved.timeZone() == date.timeZone());
    moved.descriptionWithCalendarFormat(format);
    return 0;
}
