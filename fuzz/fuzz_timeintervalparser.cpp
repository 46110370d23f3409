// SPDX-License-Identifier: LGPL-2.1-or-later
// Reads arbitrary text with a time interval formatter whose settings come from the input,
// formats what it read, and checks the promises the formatter documents.
//
// Input layout, each field taken from the front (missing bytes read as 0):
//   flags        1 byte: 1 wide components, 2 milliseconds, 4 null text, 8 reserved style
//   minimum      4 bytes (int32) with flag 1, else 1 byte as a component near 0..4
//   maximum      the same
//   style        1 byte (int8), used with flag 8, else 0
//   clamps       1 byte: low nibble the lower clamp, high nibble the upper one, each
//                0 default, 1 NaN, 2 infinity, 3 zero, 4 and up 8 more bytes of double
//   separator    1 byte length (0..3), then that many bytes of UTF-8
//   text         the rest, UTF-8

#include <Brixel/BXTimeIntervalFormatter.h>
#include "values/TimeIntervalComponents_p.h"
#include <Brixel/ZARNTimeAndSizeStrings.h>

#include <QString>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size)
        : m_data(data)
        , m_size(size)
    {
    }

    template<typename T>
    T take()
    {
        T value{};
        const std::size_t count = std::min(sizeof(T), m_size);
        std::memcpy(&value, m_data, count);
        m_data += count;
        m_size -= count;
        return value;
    }

    QString takeText(std::size_t length)
    {
        length = std::min(length, m_size);
        const QString text = QString::fromUtf8(reinterpret_cast<const char *>(m_data), qsizetype(length));
        m_data += length;
        m_size -= length;
        return text;
    }

    QString rest() { return takeText(m_size); }

private:
    const std::uint8_t *m_data;
    std::size_t m_size;
};

int takeComponent(Input &input, bool wide)
{
    return wide ? input.take<std::int32_t>() : input.take<std::int8_t>() % 8;
}

double takeClamp(Input &input, unsigned choice, double sign)
{
    switch (choice) {
    case 0:
        return sign * 4294967295.0;
    case 1:
        return std::numeric_limits<double>::quiet_NaN();
    case 2:
        return sign * std::numeric_limits<double>::infinity();
    case 3:
        return 0.0;
    default:
        return input.take<double>();
    }
}

// Whether the formatter must read its own display back as the value shown, down to whole
// units of the smallest component: whole, non-negative seconds in the int range that the
// clamps leave alone, components within seconds..weeks, and a separator that cannot be
// taken for part of a number's digits.
bool mustReadBack(const BXTimeIntervalFormatter &formatter, double value)
{
    const QString separator = formatter.componentSeparator();
    const bool separatorHasDigits = std::any_of(separator.cbegin(), separator.cend(),
                                                [](QChar c) { return c >= u'0' && c <= u'9'; });
    return formatter.componentStyle() == 0 && !formatter.showsMilliseconds() && formatter.minimumComponent() >= 0
        && formatter.minimumComponent() < formatter.maximumComponent() && formatter.maximumComponent() <= 4
        && !separator.isEmpty() && !separatorHasDigits && value >= 0 && value <= 2147483647.0
        && value >= formatter.minimumTimeInterval() && value <= formatter.maximumTimeInterval();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const auto flags = input.take<std::uint8_t>();
    const int minimum = takeComponent(input, flags & 1);
    const int maximum = takeComponent(input, flags & 1);
    const int style = (flags & 8) ? input.take<std::int8_t>() : 0;
    const auto clampChoice = input.take<std::uint8_t>();
    const double lower = takeClamp(input, clampChoice & 0x0f, -1.0);
    const double upper = takeClamp(input, clampChoice >> 4, 1.0);
    const QString separator = input.takeText(input.take<std::uint8_t>() % 4);
    const QString text = (flags & 4) ? QString() : input.rest();

    BXTimeIntervalFormatter formatter(minimum, maximum, lower, upper, separator, style);
    formatter.setShowsMilliseconds(flags & 2);

    QVariant value;
    QString error = QStringLiteral("untouched");
    const bool read = formatter.getObjectValue(&value, text, &error);
    if (read == text.isNull() || error != QStringLiteral("untouched") || value.typeId() != QMetaType::Double)
        std::abort();

    const double seconds = value.toDouble();
    const bool wholeInt = seconds >= -2147483648.0 && seconds <= 2147483647.0 && seconds == std::trunc(seconds);
    if (!formatter.showsMilliseconds() && !wholeInt)
        std::abort();

    const QString shown = formatter.stringForObjectValue(value);
    if (mustReadBack(formatter, seconds)) {
        QVariant again;
        formatter.getObjectValue(&again, shown, nullptr);
        const double unit = BrixelPrivate::_BXTimeIntervalComponentScalar(formatter.minimumComponent());
        if (again.toDouble() != std::trunc(seconds / unit) * unit)
            std::abort();
    }
    if (formatter.stringForObjectValue(text) != QStringLiteral("0"))
        std::abort();

    Brixel::ZARNLongStringForTimeInterval(seconds);
    return 0;
}
