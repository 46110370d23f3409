// SPDX-License-Identifier: LGPL-2.1-or-later
// Reduces arbitrary text (UTF-8) to the shortest date format and feeds that format to the
// calendar date's writing and parsing. Besides crashes and undefined behaviour, it checks that
// the result is three slots joined by "/" with the year always present, and that a date
// written with a format holding all three fields reads back as the same day.

#include <Brixel/BXDateFormats.h>
#include <Brixel/ZARNCalendarDate.h>

#include <QString>
#include <QTimeZone>

#include <cstdint>
#include <cstdlib>

namespace {

void check(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString format = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString shortest = Brixel::DateFormatStringToShortestDateFormatString(format);
    check(shortest.count(u'/') == 2);
    check(shortest.contains(QStringLiteral("%y")));

    ZARNCalendarDate::setDefaultTimeZone(QTimeZone::utc());
    const ZARNCalendarDate date = ZARNCalendarDate::dateWithYear(2024, 5, 15, 0, 0, 0, QTimeZone::utc());
    const QString written = date.descriptionWithCalendarFormat(shortest);
    const auto read = ZARNCalendarDate::dateWithString(written, shortest);
    if (shortest.contains(QStringLiteral("%e")) && shortest.contains(QStringLiteral("m"))) {
        check(read.has_value());
        check(read->yearOfCommonEra() == 2024 && read->monthOfYear() == 5 && read->dayOfMonth() == 15);
    }
    return 0;
}
