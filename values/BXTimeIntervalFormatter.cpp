// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXTimeIntervalFormatter.h"

#include "NumberText_p.h"
#include "TimeIntervalComponents_p.h"

#include <QList>

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

constexpr double defaultMaximumTimeInterval = 4294967295.0; // 2^32 - 1

struct ComponentUnits
{
    double scalar;
    double base;
};

ComponentUnits unitsOf(int component)
{
    static constexpr ComponentUnits table[] = {{1, 60}, {60, 60}, {3600, 24}, {86400, 7}, {604800, 1}};
    if (component >= BXTimeIntervalSecondsComponent && component <= BXTimeIntervalWeeksComponent)
        return table[component];
    return {1, 1};
}

QString defaultSeparator()
{
    return QStringLiteral(":");
}

bool isNumber(const QVariant &object)
{
    switch (object.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

// Lower bound first, so crossed bounds end at the maximum. NaN fails the lower test and
// becomes the minimum.
double clamped(double value, double minimum, double maximum)
{
    if (!(value >= minimum))
        value = minimum;
    if (value > maximum)
        value = maximum;
    return value;
}

// trunc(value / scalar) modulo trunc(base) on 32-bit integers, so a negative value gives a
// negative remainder. Bases are 60, 24, 7 or 1: never 0 or -1, so % cannot trap.
int remainderOf(double value, int component)
{
    const ComponentUnits units = unitsOf(component);
    return Brixel::truncatedToInt32(value / units.scalar) % Brixel::truncatedToInt32(units.base);
}

QString millisecondsPiece(double remainder)
{
    QString text = BrixelPrivate::fixedText(remainder, 3);
    if (remainder < 10)
        text.prepend(u'0');
    return text;
}

// The pieces of string between separators, left to right, empty pieces kept. An empty
// separator does not split.
QList<QStringView> splitPieces(const QString &string, const QString &separator)
{
    if (separator.isEmpty())
        return {QStringView(string)};
    return QStringView(string).split(separator);
}

} // namespace

double BrixelPrivate::_BXTimeIntervalComponentScalar(int component)
{
    return unitsOf(component).scalar;
}

double BrixelPrivate::_BXTimeIntervalComponentBase(int component)
{
    return unitsOf(component).base;
}

BXTimeIntervalFormatter::BXTimeIntervalFormatter()
    : BXTimeIntervalFormatter(BXTimeIntervalSecondsComponent, BXTimeIntervalWeeksComponent)
{
}

BXTimeIntervalFormatter::BXTimeIntervalFormatter(int minimumComponent, int maximumComponent)
    : BXTimeIntervalFormatter(minimumComponent, maximumComponent, -defaultMaximumTimeInterval,
                              defaultMaximumTimeInterval, defaultSeparator(), 0)
{
}

BXTimeIntervalFormatter::BXTimeIntervalFormatter(int minimumComponent, int maximumComponent,
                                                 double minimumTimeInterval, double maximumTimeInterval,
                                                 const QString &componentSeparator, int componentStyle)
    : m_minimumComponent(minimumComponent)
    , m_maximumComponent(maximumComponent)
    , m_maximumTimeInterval(maximumTimeInterval)
    , m_minimumTimeInterval(minimumTimeInterval)
    , m_componentStyle(componentStyle) // unchecked on purpose, unlike setComponentStyle()
{
    setComponentSeparator(componentSeparator);
}

void BXTimeIntervalFormatter::setComponentSeparator(const QString &separator)
{
    m_componentSeparator = separator.isNull() ? defaultSeparator() : separator;
}

void BXTimeIntervalFormatter::setComponentStyle(int style)
{
    m_componentStyle = (style == 0 || style == 1) ? style : 0;
}

int BXTimeIntervalFormatter::_componentCount() const
{
    if (m_minimumComponent > m_maximumComponent)
        return 1;
    // In 64 bits: the span between two ints can exceed the int range.
    const qint64 span = qint64(m_maximumComponent) - qint64(m_minimumComponent) + 1;
    return int(std::min<qint64>(span, INT_MAX));
}

double BXTimeIntervalFormatter::_valueForComponentString(QStringView string, int componentType) const
{
    return BrixelPrivate::leadingNumber(string) * BrixelPrivate::_BXTimeIntervalComponentScalar(componentType);
}

QString BXTimeIntervalFormatter::stringForObjectValue(const QVariant &object) const
{
    if (!isNumber(object))
        return QStringLiteral("0");
    const double value = clamped(object.toDouble(), m_minimumTimeInterval, m_maximumTimeInterval);
    // Non-null, so the result reads back as a string rather than as "no string".
    const QString empty = QStringLiteral("");
    if (m_componentStyle != 0)
        return empty;

    const int count = _componentCount();
    const int smallest = m_minimumComponent;
    const bool milliseconds = smallest == BXTimeIntervalSecondsComponent && m_showsMilliseconds;
    if (count <= 1) {
        if (milliseconds)
            return BrixelPrivate::fixedText(value, 3);
        // Divides by the base, not the scalar, on purpose: seconds alone show value / 60.
        return QString::number(Brixel::truncatedToInt32(value / BrixelPrivate::_BXTimeIntervalComponentBase(smallest)));
    }
    if (count > maximumShownComponents)
        return empty;

    // Largest component first: it never wraps and is not padded.
    QString result = QString::number(Brixel::truncatedToInt32(value / BrixelPrivate::_BXTimeIntervalComponentScalar(m_maximumComponent)));
    result += m_componentSeparator;
    for (int component = m_maximumComponent - 1; component > smallest; --component) {
        result += BrixelPrivate::zeroPaddedBelowTen(remainderOf(value, component));
        result += m_componentSeparator;
    }
    if (milliseconds)
        result += millisecondsPiece(std::fmod(value, BrixelPrivate::_BXTimeIntervalComponentBase(smallest)));
    else
        result += BrixelPrivate::zeroPaddedBelowTen(remainderOf(value, smallest));
    return result;
}

double BXTimeIntervalFormatter::sumOfComponents(const QString &string) const
{
    const QList<QStringView> pieces = splitPieces(string, m_componentSeparator);
    double sum = 0.0;
    int component = m_minimumComponent;
    for (auto piece = pieces.crbegin(); piece != pieces.crend(); ++piece) {
        sum += _valueForComponentString(*piece, component);
        // Stops at INT_MAX instead of overflowing; every number past 4 reads as seconds anyway.
        if (component < INT_MAX)
            ++component;
    }
    return sum;
}

bool BXTimeIntervalFormatter::getObjectValue(QVariant *object, const QString &string, QString *errorDescription) const
{
    Q_UNUSED(errorDescription) // nothing is ever refused, so there is nothing to describe
    double value = 0.0;
    if (string.isNull()) {
        const bool zeroAllowed = m_minimumTimeInterval <= 0 && m_maximumTimeInterval >= 0;
        value = zeroAllowed ? 0.0 : m_minimumTimeInterval;
    } else {
        value = m_componentStyle == 0 ? sumOfComponents(string) : 0.0;
        value = clamped(value, m_minimumTimeInterval, m_maximumTimeInterval);
    }
    // The fraction is dropped through a 32-bit int, so a value beyond its range (the default
    // clamps allow some) becomes -2147483648; stored values depend on that, so it stays.
    if (!m_showsMilliseconds)
        value = Brixel::truncatedToInt32(value);
    if (object)
        *object = value;
    return !string.isNull();
}
